#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/JsonReading_p.h"

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
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        m_result = nullptr;
        return;
    }
    m_result = MakeRecord<ProjectComponentExistingCheck>();
    if (!m_result) {
        WarnNull(Source, L"m_result 为空");
        return;
    }
    m_result->Exist = BoolMember(object, QLatin1String("exist"));
    m_result->Version = IntMember(object, QLatin1String("version"));
}

} // namespace tarnnuq
