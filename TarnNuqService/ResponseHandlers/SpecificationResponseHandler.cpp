#include "ResponseHandlers/SpecificationResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"
#include "ResponseHandlers/ParameterValues_p.h"
#include "ResponseHandlers/RecordReading_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "ResponseHandlers/SpecificationResponseHandler.cpp", __LINE__, "tarnnuq::SpecificationResponseHandler::HandleData"};

void ReadParameters(const QJsonArray& array, ISpecification& specification)
{
    for (const QJsonValue& element : array) {
        auto spParameterDefinition = MakeRecord<IParameterDefinition>();
        if (!spParameterDefinition) {
            WarnNull(Source, L"spParameterDefinition 为空");
            continue;
        }
        ReadParameterDefinition(element.toObject(), *spParameterDefinition);
        auto spParameter = MakeRecord<IParameter>();
        if (!spParameter) {
            WarnNull(Source, L"spParameter 为空");
            continue;
        }
        spParameter->Definition = spParameterDefinition;
        specification.Parameters[spParameterDefinition->Name] = std::move(spParameter);
    }
}

void ReadSpecification(const QJsonObject& object, ISpecification& specification)
{
    ReadParameters(object.value(QLatin1String("parameters")).toArray(), specification);
    const QJsonObject familyType = object.value(QLatin1String("familyType")).toObject();
    specification.Name = TextMember(familyType, QLatin1String("name"));
    if (!specification.Parameters.empty()) {
        ApplyParameterValues(
            familyType.value(QLatin1String("parameterValues")).toArray(), {}, specification.Parameters);
    }
}

} // namespace

SpecificationResponseHandler::SpecificationResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

SpecificationResponseHandler::~SpecificationResponseHandler() = default;

SpecificationResponseHandler::SpecificationResponseHandler(const SpecificationResponseHandler& other) = default;

SpecificationResponseHandler& SpecificationResponseHandler::operator=(
    const SpecificationResponseHandler& other) = default;

void SpecificationResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = ReadRecord<ISpecification>(data, Source, ReadSpecification);
}

} // namespace tarnnuq
