#include "ResponseHandlers/ProjectComponentResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ProjectComponentReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"
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
    m_result =
        ReadRecord<IProjectComponent>(data, Source, [this](const QJsonObject& object, IProjectComponent& component) {
            ReadCommonComponentMembers(object, component);
            ReadCatalogueMembers(object, ThumbnailUrl(m_staticEndPoint), component);
            component.CategoryId = TextMember(object, QLatin1String("categoryId"));
        });
}

} // namespace tarnnuq
