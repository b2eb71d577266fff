#include "ResponseHandlers/LegendsResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/LegendReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "ResponseHandlers/LegendsResponseHandler.cpp", __LINE__, "tarnnuq::LegendsResponseHandler::HandleData"};

} // namespace

LegendsResponseHandler::LegendsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

LegendsResponseHandler::~LegendsResponseHandler() = default;

LegendsResponseHandler::LegendsResponseHandler(const LegendsResponseHandler& other) = default;

LegendsResponseHandler& LegendsResponseHandler::operator=(const LegendsResponseHandler& other) = default;

void LegendsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    const ThumbnailUrl thumbnailUrl(m_staticEndPoint);
    AppendRecords(data.toArray(), {Source, L"spLegend 为空"}, m_result,
        [&thumbnailUrl](const QJsonObject& object, ILegend& legend) { ReadLegend(object, thumbnailUrl, legend); });
}

} // namespace tarnnuq
