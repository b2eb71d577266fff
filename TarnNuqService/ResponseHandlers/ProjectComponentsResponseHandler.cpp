#include "ResponseHandlers/ProjectComponentsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "EnvSvcs/EnvService.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/ProjectComponentReader_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/ProjectComponentsResponseHandler.cpp", __LINE__,
    "tarnnuq::ProjectComponentsResponseHandler::HandleData"};

} // namespace

ProjectComponentsResponseHandler::ProjectComponentsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

ProjectComponentsResponseHandler::~ProjectComponentsResponseHandler() = default;

ProjectComponentsResponseHandler::ProjectComponentsResponseHandler(
    const ProjectComponentsResponseHandler& other) = default;

ProjectComponentsResponseHandler& ProjectComponentsResponseHandler::operator=(
    const ProjectComponentsResponseHandler& other) = default;

void ProjectComponentsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    AppendComponents(data.toArray(), ThumbnailUrl(m_staticEndPoint), Source, m_result);
}

} // namespace tarnnuq
