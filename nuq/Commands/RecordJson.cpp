#include "Commands/RecordJson.h"

#include "Components/ValueText.h"

namespace nuq {
namespace {

void WriteId(JsonWriter& json, const char* key, std::int32_t id)
{
    json.Key(key);
    json.NumberAsText(id);
}

template <class Texts>
void WriteTexts(JsonWriter& json, const Texts& texts)
{
    json.BeginArray();
    for (const std::wstring& text : texts)
        json.Text(std::wstring_view(text));
    json.EndArray();
}

void WriteParameter(JsonWriter& json, const std::wstring& name, const tarnnuq::IParameter& parameter)
{
    const tarnnuq::IParameterDefinition none;
    const tarnnuq::IParameterDefinition& definition = parameter.Definition ? *parameter.Definition : none;
    json.BeginObject();
    json.Member("code", definition.Code);
    json.Member("groupName", definition.GroupName);
    json.Member("id", definition.Id);
    json.Member("isValueSpecified", parameter.IsValueSpecified);
    json.Member("name", name);
    json.Member("unit", definition.Unit);
    json.Member("value", parameter.Value);
    json.Member("valueText", componentlibrary::ValueText(parameter));
    json.Member("valueType", definition.ValueType);
    json.EndObject();
}

void WriteThumbnails(JsonWriter& json, const tarnnuq::IDetailedProjectComponent& component)
{
    json.Key("thumbnails");
    json.BeginObject();
    for (const auto& [size, urls] : component.Thumbnails) {
        json.Key(size);
        WriteTexts(json, urls);
    }
    json.EndObject();
}

/// @param detail the same component when its details are known; they stand among the other members, sorted by name
void WriteComponent(
    JsonWriter& json, const tarnnuq::IProjectComponent& component, const tarnnuq::IDetailedProjectComponent* detail)
{
    json.BeginObject();
    json.Member("categoryCode", component.CategoryCode);
    json.Member("categoryId", component.CategoryId);
    if (detail != nullptr) {
        json.Key("familyTypeNames");
        WriteTexts(json, detail->FamilyTypeNames);
    }
    json.Member("id", component.Id);
    json.Member("name", component.Name);
    if (detail == nullptr)
        json.Member("publicComponentId", component.PublicComponentId);
    json.Member("source", component.Source);
    json.Member("status", component.Status);
    if (detail != nullptr)
        WriteThumbnails(json, *detail);
    else
        json.Member("thumbnail", component.Thumbnail);
    json.Member("version", component.Version);
    json.EndObject();
}

} // namespace

void WriteCategory(JsonWriter& json, const tarnnuq::ICategory& category, std::optional<int> depth)
{
    json.BeginObject();
    json.Member("code", category.Code);
    json.Member("count", category.Count);
    if (depth)
        json.Member("depth", *depth);
    WriteId(json, "id", category.Id);
    json.Member("isLeaf", category.IsLeaf);
    json.Member("name", category.Name);
    json.Member("parentCode", category.ParentCode);
    WriteId(json, "parentId", category.ParentId);
    json.Member("weight", category.Weight);
    json.EndObject();
}

void WriteServiceCategory(JsonWriter& json, const tarnnuq::ICategory& category)
{
    json.BeginObject();
    json.Member("count", category.Count);
    WriteId(json, "id", category.Id);
    json.Member("name", category.Name);
    WriteId(json, "parentId", category.ParentId);
    json.Member("weight", category.Weight);
    json.EndObject();
}

void WriteComponent(JsonWriter& json, const tarnnuq::IProjectComponent& component)
{
    WriteComponent(json, component, nullptr);
}

void WriteComponentDetail(JsonWriter& json, const tarnnuq::IDetailedProjectComponent& component)
{
    WriteComponent(json, component, &component);
}

void WriteDefinition(JsonWriter& json, const tarnnuq::IParameterDefinition& definition)
{
    json.BeginObject();
    json.Member("code", definition.Code);
    json.Member("formula", definition.Formula);
    json.Member("groupName", definition.GroupName);
    json.Member("id", definition.Id);
    json.Member("isBuildIn", definition.IsBuildIn);
    json.Member("isDriveParameter", definition.IsDriveParameter);
    json.Member("isEssential", definition.IsEssential);
    json.Member("isFromFile", definition.IsFromFile);
    json.Member("isGeometry", definition.IsGeometry);
    json.Member("isInstance", definition.IsInstance);
    json.Member("isOutputParameter", definition.IsOutputParameter);
    json.Member("isShared", definition.IsShared);
    json.Member("isStandard", definition.IsStandard);
    json.Member("name", definition.Name);
    json.Member("parameterDisplayType", definition.ParameterDisplayType);
    json.Member("parameterType", definition.ParameterType);
    json.Member("unit", definition.Unit);
    json.Member("unitCode", definition.UnitCode);
    json.Member("valueType", definition.ValueType);
    json.Key("values");
    json.BeginObject();
    for (const auto& [key, text] : definition.Values) {
        json.Key(key);
        json.Text(std::wstring_view(text));
    }
    json.EndObject();
    json.EndObject();
}

void WriteSpecification(JsonWriter& json, const tarnnuq::ISpecification& specification)
{
    json.BeginObject();
    json.Member("name", specification.Name);
    json.Key("parameters");
    json.BeginArray(true);
    for (const auto& [name, parameter] : specification.Parameters) {
        if (parameter == nullptr)
            json.Null();
        else
            WriteParameter(json, name, *parameter);
    }
    json.EndArray();
    json.EndObject();
}

} // namespace nuq
