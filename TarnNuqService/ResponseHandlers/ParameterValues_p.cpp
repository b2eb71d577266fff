#include "ResponseHandlers/ParameterValues_p.h"

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/JsonReading_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

bool IsYesNo(const IParameter& parameter)
{
    return parameter.Definition && parameter.Definition->ValueType == L"Logic";
}

void SetValue(const QString& value, IParameter& parameter)
{
    parameter.Value = (IsYesNo(parameter) ? value.trimmed().toLower() : value).toStdWString();
    parameter.SetIsValueSpecified(true);
}

} // namespace

void ApplyParameterValues(
    const QJsonArray& values, const std::map<std::wstring, std::shared_ptr<IParameter>>& parameters)
{
    for (const QJsonValue& element : values) {
        const QJsonObject object = element.toObject();
        const auto parameter = parameters.find(TextMember(object, QLatin1String("name")));
        if (parameter != parameters.end() && parameter->second) {
            SetValue(object.value(QLatin1String("value")).toString(), *parameter->second);
        }
    }
}

} // namespace tarnnuq
