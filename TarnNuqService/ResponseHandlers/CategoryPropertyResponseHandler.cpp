#include "ResponseHandlers/CategoryPropertyResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ICategoryProperty.h"
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"

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
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        m_result = nullptr;
        return;
    }
    m_result = MakeRecord<ICategoryProperty>();
    if (!m_result) {
        WarnNull(Source, L"m_result 为空");
        return;
    }
    m_result->CategoryId = IdText(object.value(QLatin1String("categoryId")));
    m_result->CategoryName = TextMember(object, QLatin1String("categoryName"));
    ReadDefinitions(object.value(QLatin1String("propertyList")).toArray(), m_result->ParameterDefinitions);
}

} // namespace tarnnuq
