#include "ResponseHandlers/ParameterValues_p.h"

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/JsonReading_p.h"

#include <QJsonArray>
#include <algorithm>

namespace tarnnuq {

namespace {

void SetValue(const QString& value, bool isYesNo, IParameter& parameter)
{
    parameter.Value = WideText(isYesNo ? value.trimmed().toLower() : value);
    parameter.SetIsValueSpecified(true);
}

// Values that were not given are left out of the reply: look this far ahead for the next one that was.
constexpr std::size_t LookAhead = 4;

/// Walks the likely parameters beside the values.
class LikelyParameters
{
public:
    explicit LikelyParameters(const std::vector<NamedParameter>& parameters) : m_parameters(parameters) {}

    const NamedParameter* Find(const QString& name)
    {
        const std::size_t end = std::min(m_next + LookAhead, m_parameters.size());
        for (std::size_t i = m_next; i < end; ++i) {
            if (m_parameters[i].parameter && m_parameters[i].name == name) {
                m_next = i + 1;
                return &m_parameters[i];
            }
        }
        return nullptr;
    }

private:
    const std::vector<NamedParameter>& m_parameters;
    std::size_t m_next = 0;
};

using ParameterMap = std::map<std::wstring, std::shared_ptr<IParameter>>;

IParameter* FindParameter(const ParameterMap& parameters, const QString& name)
{
    const auto found = parameters.find(WideText(name));
    return found == parameters.end() ? nullptr : found->second.get();
}

} // namespace

bool IsYesNo(const IParameterDefinition& definition)
{
    return definition.ValueType == L"Logic";
}

void ApplyParameterValues(
    const QJsonArray& values, const std::vector<NamedParameter>& likely, const ParameterMap& parameters)
{
    LikelyParameters likelyParameters(likely);
    for (const QJsonValue& element : values) {
        const QJsonObject object = element.toObject();
        const QString name = object.value(QLatin1String("name")).toString();
        const auto value = [&object] { return object.value(QLatin1String("value")).toString(); };
        if (const NamedParameter* named = likelyParameters.Find(name)) {
            SetValue(value(), named->isYesNo, *named->parameter);
        } else if (IParameter* parameter = FindParameter(parameters, name)) {
            SetValue(value(), parameter->Definition && IsYesNo(*parameter->Definition), *parameter);
        }
    }
}

} // namespace tarnnuq
