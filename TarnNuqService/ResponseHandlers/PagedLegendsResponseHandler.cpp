#include "ResponseHandlers/PagedLegendsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/LegendReader_p.h"
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
    const QJsonArray array = object.value(QLatin1String("list")).toArray();
    m_result.List.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        auto spLegend = MakeRecord<ILegend>();
        if (!spLegend) {
            WarnNull(Source, L"spLegend为空", L"2020-05-29");
            continue;
        }
        const QJsonObject legend = element.toObject();
        ReadLegend(legend, thumbnailUrl, *spLegend);
        spLegend->StandardSource = TextMember(legend, QLatin1String("standardSource"));
        m_result.List.push_back(std::move(spLegend));
    }
}

} // namespace tarnnuq
