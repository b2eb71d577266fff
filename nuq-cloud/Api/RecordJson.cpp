#include "Api/RecordJson.h"

namespace nuqcloud {
namespace {

constexpr int kSourceCatalogue = 0;
constexpr int kSourceProject = 1;

/// A project's component carries an id of its own.
int SourceOf(const ComponentRecord& component)
{
    return component.id == component.publicId ? kSourceCatalogue : kSourceProject;
}

} // namespace

void RecordJson::Category(JsonWriter& out, const nuqcloud::Category& category, std::int64_t count) const
{
    const std::string& name = m_language == Language::Chinese ? category.nameZh : category.nameEn;
    out.BeginObject();
    out.Key("id").Integer(category.id).Key("name").Text(name).Key("code").Text(category.code);
    out.Key("parentId").Integer(category.parentId).Key("parentCode").Text(category.parentCode);
    out.Key("weight").Number(category.weight).Key("count").Integer(count + m_tweaks.countError);
    out.EndObject();
}

void RecordJson::ComponentMembers(JsonWriter& out, const ComponentRecord& component) const
{
    const nuqcloud::Category* const category = m_categories.FindByCode(component.categoryCode);
    out.Key("id").Text(component.id);
    out.Key("version").Integer(component.version + (m_tweaks.catalogueChanged ? 1 : 0));
    out.Key("name").Text(In(m_language, component.name));
    out.Key("categoryId").Integer(category == nullptr ? 0 : category->id);
    out.Key("categoryCode").Text(component.categoryCode).Key("thumbnail").Text(component.thumbnail);
    out.Key("source").Integer(SourceOf(component)).Key("publicComponentId").Text(component.publicId);
    out.Key("status").Text(component.status);
}

void RecordJson::Component(JsonWriter& out, const ComponentRecord& component) const
{
    out.BeginObject();
    ComponentMembers(out, component);
    out.EndObject();
}

void RecordJson::Detail(JsonWriter& out, const ComponentDetailRecord& detail, const std::string& familyTypeNames) const
{
    out.BeginObject();
    ComponentMembers(out, detail.component);
    out.Key("familyTypeNames").Raw(familyTypeNames).Key("thumbnailSizes").Raw(detail.thumbnailSizes);
    out.EndObject();
}

void RecordJson::Legend(JsonWriter& out, const LegendRecord& legend) const
{
    out.BeginObject();
    out.Key("id").Integer(legend.id).Key("name").Text(In(m_language, legend.name));
    out.Key("thumbnail").Text(legend.thumbnail).Key("placeholderType").Integer(legend.view);
    out.Key("standardSource").Text(legend.standardSource);
    out.EndObject();
}

void RecordJson::Mapping(JsonWriter& out, const MappingRecord& mapping) const
{
    out.BeginObject();
    out.Key("componentEditorCategoryId").Text(mapping.componentEditorCategoryId);
    out.Key("categoryId").Integer(mapping.categoryId).Key("categoryCode").Text(mapping.categoryCode);
    out.Key("name").Raw(mapping.names).Key("major").Integer(mapping.major);
    out.EndObject();
}

void RecordJson::Project(JsonWriter& out, const ProjectRecord& project) const
{
    out.BeginObject().Key("id").Text(project.id).Key("name").Text(In(m_language, project.name)).EndObject();
}

} // namespace nuqcloud
