#include "TarnNuqService/ResponseHandlers/RecordText.h"

#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"

#include <cstdint>
#include <map>
#include <sstream>

namespace testsupport {

namespace {

/// Wide text in which nothing is lost: what is no printable ASCII is written as its number.
std::string Quoted(const std::wstring& text)
{
    std::ostringstream quoted;
    quoted << '"';
    for (const wchar_t character : text) {
        if (character >= L' ' && character <= L'~') {
            quoted << static_cast<char>(character);
        } else {
            quoted << '<' << std::hex << static_cast<std::uint32_t>(character) << '>';
        }
    }
    quoted << '"';
    return quoted.str();
}

std::string Quoted(const std::vector<std::wstring>& texts)
{
    std::string quoted;
    for (const std::wstring& text : texts) {
        quoted += Quoted(text) + ' ';
    }
    return quoted;
}

/// Collects the members of a record.
class Members
{
public:
    explicit Members(const char* record) { m_text << record << '\n'; }

    Members& Add(const char* name, const std::wstring& value) { return AddLine(name, Quoted(value)); }
    Members& Add(const char* name, const std::vector<std::wstring>& value) { return AddLine(name, Quoted(value)); }

    template <typename Number>
    Members& Add(const char* name, Number value)
    {
        std::ostringstream text;
        text.precision(17);
        text << std::boolalpha << value;
        return AddLine(name, text.str());
    }

    Members& AddLine(const std::string& name, const std::string& value)
    {
        m_text << "  " << name << ": " << value << '\n';
        return *this;
    }

    std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
};

Members MembersOf(const tarnnuq::IProjectComponent& component)
{
    Members members("component");
    members.Add("Id", component.Id).Add("Name", component.Name).Add("CategoryId", component.CategoryId);
    members.Add("CategoryCode", component.CategoryCode).Add("Thumbnail", component.Thumbnail);
    members.Add("Version", component.Version).Add("Source", component.Source);
    members.Add("PublicComponentId", component.PublicComponentId).Add("Status", component.Status);
    return members;
}

} // namespace

std::string Describe(const tarnnuq::ICategory& category)
{
    Members members("category");
    members.Add("Id", category.Id).Add("IdText", category.IdText).Add("Name", category.Name);
    members.Add("ParentId", category.ParentId).Add("ParentIdText", category.ParentIdText);
    members.Add("Weight", category.Weight).Add("Count", category.Count).Add("Code", category.Code);
    members.Add("ParentCode", category.ParentCode).Add("NamePath", category.NamePath);
    return members.Add("IsLeaf", category.IsLeaf).Text();
}

std::string Describe(const tarnnuq::ICategoryMapping& mapping)
{
    Members members("mapping");
    members.Add("CategoryId", mapping.CategoryId).Add("CategoryCode", mapping.CategoryCode);
    members.Add("Names", mapping.Names).Add("Major", static_cast<int>(mapping.Major));
    return members.Add("ComponentEditorCategoryId", mapping.ComponentEditorCategoryId).Text();
}

std::string Describe(const tarnnuq::ICategoryProperty& property)
{
    Members members("property");
    members.Add("CategoryId", property.CategoryId).Add("CategoryName", property.CategoryName);
    for (const auto& [name, definition] : property.ParameterDefinitions) {
        members.AddLine(Quoted(name), Describe(definition));
    }
    return members.Text();
}

std::string Describe(const tarnnuq::IDetailedProjectComponent& component)
{
    Members members = MembersOf(component);
    members.Add("FamilyTypeNames", component.FamilyTypeNames);
    for (const auto& [size, urls] : component.Thumbnails) {
        members.AddLine(Quoted(size), Quoted(urls));
    }
    return members.Text();
}

std::string Describe(const tarnnuq::ILegend& legend)
{
    Members members("legend");
    members.Add("Id", legend.Id).Add("Name", legend.Name).Add("Type", static_cast<int>(legend.Type));
    return members.Add("Thumbnail", legend.Thumbnail).Add("StandardSource", legend.StandardSource).Text();
}

std::string Describe(const tarnnuq::IParameter& parameter)
{
    Members members("parameter");
    members.Add("Value", parameter.Value).Add("IsValueSpecified", parameter.IsValueSpecified);
    return members.AddLine("Definition", Describe(parameter.Definition)).Text();
}

std::string Describe(const tarnnuq::IParameterDefinition& definition)
{
    Members members("definition");
    members.Add("Code", definition.Code).Add("Formula", definition.Formula).Add("GroupName", definition.GroupName);
    members.Add("Id", definition.Id).Add("IsDriveParameter", definition.IsDriveParameter);
    members.Add("IsEssential", definition.IsEssential).Add("IsGeometry", definition.IsGeometry);
    members.Add("IsInstance", definition.IsInstance).Add("IsOutputParameter", definition.IsOutputParameter);
    members.Add("IsStandard", definition.IsStandard).Add("Name", definition.Name);
    members.Add("ParameterDisplayType", definition.ParameterDisplayType);
    members.Add("ParameterType", definition.ParameterType).Add("Unit", definition.Unit);
    members.Add("UnitCode", definition.UnitCode).Add("ValueType", definition.ValueType);
    for (const auto& [key, text] : definition.Values) {
        members.AddLine("Values " + Quoted(key), Quoted(text));
    }
    members.Add("IsBuildIn", definition.IsBuildIn).Add("IsShared", definition.IsShared);
    return members.Add("IsFromFile", definition.IsFromFile).Text();
}

std::string Describe(const tarnnuq::IProjectComponent& component)
{
    return MembersOf(component).Text();
}

std::string Describe(const tarnnuq::ISpecification& specification)
{
    Members members("specification");
    members.Add("Name", specification.Name);
    for (const auto& [name, parameter] : specification.Parameters) {
        members.AddLine(Quoted(name), Describe(parameter));
    }
    return members.Text();
}

std::string Describe(const tarnnuq::ProjectComponentExistingCheck& check)
{
    return Members("check").Add("Exist", check.Exist).Add("Version", check.Version).Text();
}

} // namespace testsupport
