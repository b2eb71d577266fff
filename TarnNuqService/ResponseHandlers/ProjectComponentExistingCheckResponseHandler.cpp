#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/RecordReading_p.h"

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/ProjectComponentExistingCheckResponseHandler.cpp", __LINE__,
    "tarnnuq::ProjectComponentExistingCheckResponseHandler::HandleData"};

} // namespace

ProjectComponentExistingCheckResponseHandler::ProjectComponentExistingCheckResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

ProjectComponentExistingCheckResponseHandler::~ProjectComponentExistingCheckResponseHandler() = default;

ProjectComponentExistingCheckResponseHandler::ProjectComponentExistingCheckResponseHandler(
    const ProjectComponentExistingCheckResponseHandler& other) = default;

ProjectComponentExistingCheckResponseHandler& ProjectComponentExistingCheckResponseHandler::operator=(
    const ProjectComponentExistingCheckResponseHandler& other) = default;

void ProjectComponentExistingCheckResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = ReadRecord<ProjectComponentExistingCheck>(
        data, Source, [](const QJsonObject& object, ProjectComponentExistingCheck& check) {
            check.Exist = BoolMember(object, QLatin1String("exist"));
            check.Version = IntMember(object, QLatin1String("version"));
        });
}

} // namespace tarnnuq
