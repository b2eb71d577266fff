#include "ResponseHandlers/ParameterDefinitionReader_p.h"

#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/JsonReading_p.h"

namespace tarnnuq {

namespace {

void ReadValues(const QJsonObject& object, std::map<std::wstring, std::wstring>& values)
{
    values.clear();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        values.insert_or_assign(values.end(), WideText(member.key()), WideText(member.value().toString()));
    }
}

} // namespace

void ReadParameterDefinition(const QJsonObject& object, IParameterDefinition& definition)
{
    definition.Code = TextMember(object, QLatin1String("code"));
    definition.Formula = TextMember(object, QLatin1String("formula"));
    definition.GroupName = TextMember(object, QLatin1String("groupName"));
    definition.Id = TextMember(object, QLatin1String("id"));
    definition.IsDriveParameter = BoolMember(object, QLatin1String("isDriveParameter"));
    definition.IsEssential = BoolMember(object, QLatin1String("isEssential"));
    definition.IsGeometry = BoolMember(object, QLatin1String("isGeometry"));
    definition.IsInstance = BoolMember(object, QLatin1String("isInstance"));
    definition.IsOutputParameter = BoolMember(object, QLatin1String("isOutputParameter"));
    definition.IsStandard = BoolMember(object, QLatin1String("isStandard"));
    definition.Name = TextMember(object, QLatin1String("name"));
    definition.ParameterDisplayType = TextMember(object, QLatin1String("parameterDisplayType"));
    definition.ParameterType = TextMember(object, QLatin1String("parameterType"));
    definition.Unit = TextMember(object, QLatin1String("unit"));
    definition.UnitCode = TextMember(object, QLatin1String("unitCode"));
    definition.ValueType = TextMember(object, QLatin1String("valueType"));
    ReadValues(object.value(QLatin1String("values")).toObject(), definition.Values);
    definition.IsBuildIn = BoolMember(object, QLatin1String("isBuildIn"));
    definition.IsShared = BoolMember(object, QLatin1String("isShared"));
    definition.IsFromFile = BoolMember(object, QLatin1String("isFromFile"));
}

} // namespace tarnnuq
