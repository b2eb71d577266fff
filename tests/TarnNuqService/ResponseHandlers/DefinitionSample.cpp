#include "TarnNuqService/ResponseHandlers/DefinitionSample.h"

#include "Records/IParameterDefinition.h"

namespace testsupport {

using tarnnuq::IParameterDefinition;

QJsonObject GoodDefinitionObject()
{
    return {{QStringLiteral("code"), QStringLiteral("W")}, {QStringLiteral("formula"), QStringLiteral("高度*2")},
        {QStringLiteral("groupName"), QStringLiteral("尺寸")}, {QStringLiteral("id"), QStringLiteral("guid-1")},
        {QStringLiteral("isDriveParameter"), true}, {QStringLiteral("isEssential"), true},
        {QStringLiteral("isGeometry"), true}, {QStringLiteral("isInstance"), true},
        {QStringLiteral("isOutputParameter"), true}, {QStringLiteral("isStandard"), true},
        {QStringLiteral("name"), QStringLiteral("宽度")},
        {QStringLiteral("parameterDisplayType"), QStringLiteral("display")},
        {QStringLiteral("parameterType"), QStringLiteral("type")}, {QStringLiteral("unit"), QStringLiteral("mm")},
        {QStringLiteral("unitCode"), QStringLiteral("MMT")}, {QStringLiteral("valueType"), QStringLiteral("Number")},
        {QStringLiteral("values"),
            QJsonObject{{QStringLiteral("1"), QStringLiteral("一")}, {QStringLiteral("2"), QStringLiteral("二")}}},
        {QStringLiteral("isBuildIn"), true}, {QStringLiteral("isShared"), true}, {QStringLiteral("isFromFile"), true}};
}

IParameterDefinition GoodDefinition()
{
    IParameterDefinition definition;
    definition.Code = L"W";
    definition.Formula = L"高度*2";
    definition.GroupName = L"尺寸";
    definition.Id = L"guid-1";
    definition.IsDriveParameter = definition.IsEssential = definition.IsGeometry = true;
    definition.IsInstance = definition.IsOutputParameter = definition.IsStandard = true;
    definition.Name = L"宽度";
    definition.ParameterDisplayType = L"display";
    definition.ParameterType = L"type";
    definition.Unit = L"mm";
    definition.UnitCode = L"MMT";
    definition.ValueType = L"Number";
    definition.Values = {{L"1", L"一"}, {L"2", L"二"}};
    definition.IsBuildIn = definition.IsShared = definition.IsFromFile = true;
    return definition;
}

const std::vector<MemberRow<IParameterDefinition>>& DefinitionMembers()
{
    using Definition = IParameterDefinition;
    static const std::vector<MemberRow<Definition>> rows{
        {"code", {QJsonValue::String}, [](Definition& definition) { definition.Code.clear(); }},
        {"formula", {QJsonValue::String}, [](Definition& definition) { definition.Formula.clear(); }},
        {"groupName", {QJsonValue::String}, [](Definition& definition) { definition.GroupName.clear(); }},
        {"id", {QJsonValue::String}, [](Definition& definition) { definition.Id.clear(); }},
        {"isDriveParameter", {QJsonValue::Bool}, [](Definition& definition) { definition.IsDriveParameter = false; }},
        {"isEssential", {QJsonValue::Bool}, [](Definition& definition) { definition.IsEssential = false; }},
        {"isGeometry", {QJsonValue::Bool}, [](Definition& definition) { definition.IsGeometry = false; }},
        {"isInstance", {QJsonValue::Bool}, [](Definition& definition) { definition.IsInstance = false; }},
        {"isOutputParameter", {QJsonValue::Bool}, [](Definition& definition) { definition.IsOutputParameter = false; }},
        {"isStandard", {QJsonValue::Bool}, [](Definition& definition) { definition.IsStandard = false; }},
        {"name", {QJsonValue::String}, [](Definition& definition) { definition.Name.clear(); }},
        {"parameterDisplayType", {QJsonValue::String},
            [](Definition& definition) { definition.ParameterDisplayType.clear(); }},
        {"parameterType", {QJsonValue::String}, [](Definition& definition) { definition.ParameterType.clear(); }},
        {"unit", {QJsonValue::String}, [](Definition& definition) { definition.Unit.clear(); }},
        {"unitCode", {QJsonValue::String}, [](Definition& definition) { definition.UnitCode.clear(); }},
        {"valueType", {QJsonValue::String}, [](Definition& definition) { definition.ValueType.clear(); }},
        {"values", {QJsonValue::Object}, [](Definition& definition) { definition.Values.clear(); }},
        {"isBuildIn", {QJsonValue::Bool}, [](Definition& definition) { definition.IsBuildIn = false; }},
        {"isShared", {QJsonValue::Bool}, [](Definition& definition) { definition.IsShared = false; }},
        {"isFromFile", {QJsonValue::Bool}, [](Definition& definition) { definition.IsFromFile = false; }}};
    return rows;
}

} // namespace testsupport
