#pragma once

#include "Records/IPagedData.h"

#include <memory>
#include <string>
#include <vector>

namespace tarnnuq {
class ICategory;
class ICategoryMapping;
class ICategoryProperty;
class IDetailedProjectComponent;
class ILegend;
class IParameter;
class IParameterDefinition;
class IProjectComponent;
class ISpecification;
class ProjectComponentExistingCheck;
} // namespace tarnnuq

namespace testsupport {

// A record as text, every member on a line of its own: two records are the same when their texts are, and a test that
// fails shows the member that differs.
std::string Describe(const tarnnuq::ICategory& category);
std::string Describe(const tarnnuq::ICategoryMapping& mapping);
std::string Describe(const tarnnuq::ICategoryProperty& property);
std::string Describe(const tarnnuq::IDetailedProjectComponent& component);
std::string Describe(const tarnnuq::ILegend& legend);
std::string Describe(const tarnnuq::IParameter& parameter);
std::string Describe(const tarnnuq::IParameterDefinition& definition);
std::string Describe(const tarnnuq::IProjectComponent& component);
std::string Describe(const tarnnuq::ISpecification& specification);
std::string Describe(const tarnnuq::ProjectComponentExistingCheck& check);

template <typename Record>
std::string Describe(const std::shared_ptr<Record>& record)
{
    return record ? Describe(*record) : std::string("null\n");
}

template <typename Record>
std::string Describe(const std::vector<std::shared_ptr<Record>>& records)
{
    std::string text = std::to_string(records.size()) + " records\n";
    for (const auto& record : records) {
        text += "- " + Describe(record);
    }
    return text;
}

template <typename T>
std::string Describe(const tarnnuq::IPagedData<T>& page)
{
    return "page of " + std::to_string(page.TotalCount) + ": " + Describe(page.List);
}

} // namespace testsupport
