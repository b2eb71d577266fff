#include "ResponseHandlers/SpecificationsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/SharedDefinitions_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/SpecificationsResponseHandler.cpp", __LINE__,
    "tarnnuq::SpecificationsResponseHandler::HandleData"};

} // namespace

SpecificationsResponseHandler::SpecificationsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

SpecificationsResponseHandler::~SpecificationsResponseHandler() = default;

SpecificationsResponseHandler::SpecificationsResponseHandler(const SpecificationsResponseHandler& other) = default;

SpecificationsResponseHandler& SpecificationsResponseHandler::operator=(
    const SpecificationsResponseHandler& other) = default;

void SpecificationsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        return;
    }
    const SharedDefinitions definitions(object.value(QLatin1String("parameters")).toArray(), Source);
    const QJsonArray familyTypes = object.value(QLatin1String("familyTypes")).toArray();
    m_result.reserve(static_cast<std::size_t>(familyTypes.size()));
    for (const QJsonValue& element : familyTypes) {
        auto spSpecification = MakeRecord<ISpecification>();
        if (!spSpecification) {
            WarnNull(Source, L"spSpecification 为空");
            continue;
        }
        const QJsonObject familyType = element.toObject();
        spSpecification->Name = TextMember(familyType, QLatin1String("name"));
        const std::vector<NamedParameter> named = definitions.MakeParameters(spSpecification->Parameters);
        ApplyParameterValues(
            familyType.value(QLatin1String("parameterValues")).toArray(), named, spSpecification->Parameters);
        m_result.push_back(std::move(spSpecification));
    }
}

} // namespace tarnnuq
