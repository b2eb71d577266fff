#include "ResponseHandlers/ProjectComponentResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ProjectComponentReader_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/ProjectComponentResponseHandler.cpp", __LINE__,
    "tarnnuq::ProjectComponentResponseHandler::HandleData"};

} // namespace

ProjectComponentResponseHandler::ProjectComponentResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

ProjectComponentResponseHandler::~ProjectComponentResponseHandler() = default;

ProjectComponentResponseHandler::ProjectComponentResponseHandler(
    const ProjectComponentResponseHandler& other) = default;

ProjectComponentResponseHandler& ProjectComponentResponseHandler::operator=(
    const ProjectComponentResponseHandler& other) = default;

void ProjectComponentResponseHandler::HandleData(const QJsonValue& data)
{
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        m_result = nullptr;
        return;
    }
    m_result = MakeRecord<IProjectComponent>();
    if (!m_result) {
        WarnNull(Source, L"m_result 为空");
        return;
    }
    ReadCommonComponentMembers(object, *m_result);
    ReadCatalogueMembers(object, ThumbnailUrl(m_staticEndPoint), *m_result);
    m_result->CategoryId = TextMember(object, QLatin1String("categoryId"));
}

} // namespace tarnnuq
