#include "ResponseHandlers/LegendsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/LegendReader_p.h"
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
    const QJsonArray array = data.toArray();
    m_result.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        const QJsonObject object = element.toObject();
        auto spLegend = MakeRecord<ILegend>();
        if (!spLegend) {
            WarnNull(Source, L"spLegend 为空");
            continue;
        }
        ReadLegend(object, thumbnailUrl, *spLegend);
        m_result.push_back(std::move(spLegend));
    }
}

} // namespace tarnnuq
