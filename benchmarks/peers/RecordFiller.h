#pragma once

#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/ResultTypes.h"

#include <string>
#include <unordered_set>

namespace bench {

/// Fills the library's records from another JSON library, as its users would write it.
/// @tparam View one of the views beside this header
template <typename View>
class RecordFiller
{
public:
    using Value = typename View::Value;

    static void Fill(const View& view, tarnnuq::RecordList<tarnnuq::ICategory>& categories)
    {
        std::unordered_set<std::wstring> parentCodes;
        View::ForEach(view.Data(), [&](const Value& object) {
            auto category = std::make_shared<tarnnuq::ICategory>();
            category->Id = Int(object, "id");
            category->Name = Text(object, "name");
            category->Code = Text(object, "code");
            category->ParentId = Int(object, "parentId");
            category->ParentCode = Text(object, "parentCode");
            category->Weight = View::Number(View::Member(object, "weight"));
            category->Count = Int(object, "count");
            parentCodes.insert(category->ParentCode);
            categories.push_back(std::move(category));
        });
        for (const auto& category : categories) {
            category->SetIsLeaf(parentCodes.count(category->Code) == 0);
        }
    }

    static void Fill(const View& view, tarnnuq::RecordList<tarnnuq::ICategoryMapping>& mappings)
    {
        View::ForEach(view.Data(), [&](const Value& object) {
            auto mapping = std::make_shared<tarnnuq::ICategoryMapping>();
            mapping->ComponentEditorCategoryId = Text(object, "componentEditorCategoryId");
            mapping->CategoryId = Int(object, "categoryId");
            mapping->CategoryCode = Text(object, "categoryCode");
            View::ForEach(
                View::Member(object, "name"), [&](const Value& name) { mapping->Names.push_back(View::Text(name)); });
            const int major = Int(object, "major");
            mapping->Major = static_cast<tarnnuq::ICategoryMapping::MajorType>(major > 2 ? -1 : major);
            mappings.push_back(std::move(mapping));
        });
    }

    static void Fill(const View& view, tarnnuq::RecordPtr<tarnnuq::ICategoryProperty>& property)
    {
        property = std::make_shared<tarnnuq::ICategoryProperty>();
        property->CategoryId = Id(view.Data(), "categoryId");
        property->CategoryName = Text(view.Data(), "categoryName");
        View::ForEach(View::Member(view.Data(), "propertyList"), [&](const Value& object) {
            auto definition = Definition(object);
            property->ParameterDefinitions[definition->Name] = std::move(definition);
        });
    }

    static void Fill(const View& view, tarnnuq::RecordPtr<tarnnuq::ISpecification>& specification)
    {
        specification = Specification(Definitions(view), View::Member(view.Data(), "familyType"));
    }

    static void Fill(const View& view, tarnnuq::RecordList<tarnnuq::ISpecification>& specifications)
    {
        const auto definitions = Definitions(view);
        View::ForEach(View::Member(view.Data(), "familyTypes"),
            [&](const Value& familyType) { specifications.push_back(Specification(definitions, familyType)); });
    }

    static void Fill(const View& view, tarnnuq::RecordPtr<tarnnuq::IProjectComponent>& component)
    {
        component = Component<tarnnuq::IProjectComponent>(view.Data());
    }

    static void Fill(const View& view, tarnnuq::RecordList<tarnnuq::IProjectComponent>& components)
    {
        AppendComponents(view.Data(), components);
    }

    static void Fill(const View& view, tarnnuq::RecordPage<tarnnuq::IProjectComponent>& page)
    {
        page.TotalCount = Int(view.Data(), "totalCount");
        AppendComponents(View::Member(view.Data(), "list"), page.List);
    }

    static void Fill(const View& view, tarnnuq::RecordPtr<tarnnuq::IDetailedProjectComponent>& component)
    {
        component = Component<tarnnuq::IDetailedProjectComponent>(view.Data());
        View::ForEach(View::Member(view.Data(), "familyTypeNames"),
            [&](const Value& name) { component->FamilyTypeNames.push_back(View::Text(name)); });
        View::ForEach(View::Member(view.Data(), "thumbnailSizes"), [&](const Value& object) {
            auto& urls = component->Thumbnails[Text(object, "size")];
            View::ForEach(
                View::Member(object, "thumbnails"), [&](const Value& path) { urls.push_back(Url(View::Text(path))); });
        });
    }

    static void Fill(const View& view, tarnnuq::RecordPtr<tarnnuq::ProjectComponentExistingCheck>& check)
    {
        check = std::make_shared<tarnnuq::ProjectComponentExistingCheck>();
        check->Exist = View::Bool(View::Member(view.Data(), "exist"));
        check->Version = Int(view.Data(), "version");
    }

    static void Fill(const View& view, tarnnuq::RecordList<tarnnuq::ILegend>& legends)
    {
        AppendLegends(view.Data(), legends);
    }

    static void Fill(const View& view, tarnnuq::RecordPage<tarnnuq::ILegend>& page)
    {
        page.TotalCount = Int(view.Data(), "totalCount");
        AppendLegends(View::Member(view.Data(), "list"), page.List);
    }

private:
    using DefinitionPtr = std::shared_ptr<tarnnuq::IParameterDefinition>;

    static std::wstring Text(const Value& object, const char* key) { return View::Text(View::Member(object, key)); }
    static int Int(const Value& object, const char* key)
    {
        return static_cast<int>(View::Number(View::Member(object, key)));
    }
    static bool Bool(const Value& object, const char* key) { return View::Bool(View::Member(object, key)); }
    static std::wstring Url(const std::wstring& path)
    {
        return path.empty() ? path : L"http://127.0.0.1/static/" + path;
    }

    static std::wstring Id(const Value& object, const char* key)
    {
        const Value value = View::Member(object, key);
        return View::IsNumber(value) ? std::to_wstring(static_cast<long long>(View::Number(value))) : View::Text(value);
    }

    static DefinitionPtr Definition(const Value& object)
    {
        auto definition = std::make_shared<tarnnuq::IParameterDefinition>();
        definition->Code = Text(object, "code");
        definition->Formula = Text(object, "formula");
        definition->GroupName = Text(object, "groupName");
        definition->Id = Text(object, "id");
        definition->IsDriveParameter = Bool(object, "isDriveParameter");
        definition->IsEssential = Bool(object, "isEssential");
        definition->IsGeometry = Bool(object, "isGeometry");
        definition->IsInstance = Bool(object, "isInstance");
        definition->IsOutputParameter = Bool(object, "isOutputParameter");
        definition->IsStandard = Bool(object, "isStandard");
        definition->Name = Text(object, "name");
        definition->ParameterDisplayType = Text(object, "parameterDisplayType");
        definition->ParameterType = Text(object, "parameterType");
        definition->Unit = Text(object, "unit");
        definition->UnitCode = Text(object, "unitCode");
        definition->ValueType = Text(object, "valueType");
        View::ForEachMember(View::Member(object, "values"),
            [&](const std::wstring& key, const Value& value) { definition->Values[key] = View::Text(value); });
        definition->IsBuildIn = Bool(object, "isBuildIn");
        definition->IsShared = Bool(object, "isShared");
        definition->IsFromFile = Bool(object, "isFromFile");
        return definition;
    }

    static std::vector<DefinitionPtr> Definitions(const View& view)
    {
        std::vector<DefinitionPtr> definitions;
        View::ForEach(View::Member(view.Data(), "parameters"),
            [&](const Value& object) { definitions.push_back(Definition(object)); });
        return definitions;
    }

    static std::shared_ptr<tarnnuq::ISpecification> Specification(
        const std::vector<DefinitionPtr>& definitions, const Value& familyType)
    {
        auto specification = std::make_shared<tarnnuq::ISpecification>();
        specification->Name = Text(familyType, "name");
        for (const auto& definition : definitions) {
            auto parameter = std::make_shared<tarnnuq::IParameter>();
            parameter->Definition = definition;
            specification->Parameters[definition->Name] = std::move(parameter);
        }
        View::ForEach(View::Member(familyType, "parameterValues"), [&](const Value& object) {
            const auto parameter = specification->Parameters.find(Text(object, "name"));
            if (parameter != specification->Parameters.end()) {
                parameter->second->Value = Text(object, "value");
                parameter->second->SetIsValueSpecified(true);
            }
        });
        return specification;
    }

    template <typename Record>
    static std::shared_ptr<Record> Component(const Value& object)
    {
        auto component = std::make_shared<Record>();
        component->Id = Id(object, "id");
        component->Version = Int(object, "version");
        component->Name = Text(object, "name");
        component->CategoryId = Id(object, "categoryId");
        component->CategoryCode = Text(object, "categoryCode");
        component->Thumbnail = Url(Text(object, "thumbnail"));
        component->Source = Int(object, "source");
        component->PublicComponentId = Id(object, "publicComponentId");
        component->Status = Text(object, "status");
        return component;
    }

    static void AppendComponents(const Value& array, tarnnuq::RecordList<tarnnuq::IProjectComponent>& components)
    {
        View::ForEach(
            array, [&](const Value& object) { components.push_back(Component<tarnnuq::IProjectComponent>(object)); });
    }

    static void AppendLegends(const Value& array, tarnnuq::RecordList<tarnnuq::ILegend>& legends)
    {
        View::ForEach(array, [&](const Value& object) {
            auto legend = std::make_shared<tarnnuq::ILegend>();
            legend->Id = static_cast<std::int64_t>(View::Number(View::Member(object, "id")));
            legend->Name = Text(object, "name");
            legend->Thumbnail = Url(Text(object, "thumbnail"));
            const Value type = View::Member(object, "placeholderType");
            const int number = View::IsNumber(type) ? 1 + static_cast<int>(View::Number(type)) : 2;
            legend->Type = static_cast<tarnnuq::ILegend::LegendType>(number);
            legend->StandardSource = Text(object, "standardSource");
            legends.push_back(std::move(legend));
        });
    }
};

} // namespace bench
