#include "ResponseHandlers/CategoryPropertyResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ICategoryProperty.h"
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/CategoryPropertyResponseHandler.cpp", __LINE__,
    "tarnnuq::CategoryPropertyResponseHandler::HandleData"};

void ReadDefinitions(
    const QJsonArray& array, std::map<std::wstring, std::shared_ptr<IParameterDefinition>>& definitions)
{
    for (const QJsonValue& element : array) {
        auto spParameterDefinition = MakeRecord<IParameterDefinition>();
        if (!spParameterDefinition) {
            WarnNull(Source, L"spParameterDefinition 为空");
            continue;
        }
        ReadParameterDefinition(element.toObject(), *spParameterDefinition);
        definitions[spParameterDefinition->Name] = std::move(spParameterDefinition);
    }
}

void ReadProperty(const QJsonObject& object, ICategoryProperty& property)
{
    property.CategoryId = IdText(object.value(QLatin1String("categoryId")));
    property.CategoryName = TextMember(object, QLatin1String("categoryName"));
    ReadDefinitions(object.value(QLatin1String("propertyList")).toArray(), property.ParameterDefinitions);
}

} // namespace

CategoryPropertyResponseHandler::CategoryPropertyResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

CategoryPropertyResponseHandler::~CategoryPropertyResponseHandler() = default;

CategoryPropertyResponseHandler::CategoryPropertyResponseHandler(
    const CategoryPropertyResponseHandler& other) = default;

CategoryPropertyResponseHandler& CategoryPropertyResponseHandler::operator=(
    const CategoryPropertyResponseHandler& other) = default;

void CategoryPropertyResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = ReadRecord<ICategoryProperty>(data, Source, ReadProperty);
}

} // namespace tarnnuq
