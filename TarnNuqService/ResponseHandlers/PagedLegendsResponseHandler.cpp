#include "ResponseHandlers/PagedLegendsResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/LegendReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "ResponseHandlers/PagedLegendsResponseHandler.cpp", __LINE__, "tarnnuq::PagedLegendsResponseHandler::HandleData"};

} // namespace

PagedLegendsResponseHandler::PagedLegendsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

PagedLegendsResponseHandler::~PagedLegendsResponseHandler() = default;

PagedLegendsResponseHandler::PagedLegendsResponseHandler(const PagedLegendsResponseHandler& other) = default;

PagedLegendsResponseHandler& PagedLegendsResponseHandler::operator=(const PagedLegendsResponseHandler& other) = default;

void PagedLegendsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = RecordPage<ILegend>();
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        return;
    }
    m_result.TotalCount = IntMember(object, QLatin1String("totalCount"));
    const ThumbnailUrl thumbnailUrl(m_staticEndPoint);
    AppendRecords(object.value(QLatin1String("list")).toArray(), {Source, L"spLegend为空", L"2020-05-29"},
        m_result.List, [&thumbnailUrl](const QJsonObject& element, ILegend& legend) {
            ReadLegend(element, thumbnailUrl, legend);
            legend.StandardSource = TextMember(element, QLatin1String("standardSource"));
        });
}

} // namespace tarnnuq
