#include "ResponseHandlers/SpecificationsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"
#include "ResponseHandlers/ParameterValues_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "ResponseHandlers/SpecificationsResponseHandler.cpp", "tarnnuq::SpecificationsResponseHandler::HandleData"};

using DefinitionList = std::vector<std::shared_ptr<IParameterDefinition>>;

DefinitionList ReadDefinitions(const QJsonArray& array)
{
    DefinitionList definitions;
    definitions.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        auto spParameterDefinition = MakeRecord<IParameterDefinition>();
        if (!spParameterDefinition) {
            WarnNull(Source, __LINE__, L"spParameterDefinition 为空");
            continue;
        }
        ReadParameterDefinition(element.toObject(), *spParameterDefinition);
        definitions.push_back(std::move(spParameterDefinition));
    }
    return definitions;
}

void AddParameters(const DefinitionList& definitions, ISpecification& specification)
{
    for (const auto& spDefinition : definitions) {
        auto spParameter = MakeRecord<IParameter>();
        if (!spParameter) {
            WarnNull(Source, __LINE__, L"spParameter 为空");
            continue;
        }
        spParameter->Definition = spDefinition;
        specification.Parameters[spDefinition->Name] = std::move(spParameter);
    }
}

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
    const DefinitionList definitions = ReadDefinitions(object.value(QLatin1String("parameters")).toArray());
    const QJsonArray familyTypes = object.value(QLatin1String("familyTypes")).toArray();
    m_result.reserve(static_cast<std::size_t>(familyTypes.size()));
    for (const QJsonValue& element : familyTypes) {
        auto spSpecification = MakeRecord<ISpecification>();
        if (!spSpecification) {
            WarnNull(Source, __LINE__, L"spSpecification 为空");
            continue;
        }
        const QJsonObject familyType = element.toObject();
        spSpecification->Name = TextMember(familyType, QLatin1String("name"));
        AddParameters(definitions, *spSpecification);
        ApplyParameterValues(familyType.value(QLatin1String("parameterValues")).toArray(), spSpecification->Parameters);
        m_result.push_back(std::move(spSpecification));
    }
}

} // namespace tarnnuq
