#pragma once

#include "Api/Language.h"
#include "Catalogue/Catalogue.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace nuqcloud {

/// Puts a component's family types together with its category's parameter definitions. Safe for many threads.
class Specifications
{
public:
    explicit Specifications(const Catalogue& catalogue) : m_catalogue(catalogue) {}

    /// JSON array of the family types' names.
    static std::string FamilyTypeNames(const ComponentDetailRecord& detail);

    /// {"parameters":[..],"familyTypes":[..]} as JSON.
    std::string All(const ComponentDetailRecord& detail, Language language) const;

    /// {"parameters":[..],"familyType":{..}} as JSON.
    /// @throws ApiError when the component has no family type of that name
    std::string One(const ComponentDetailRecord& detail, const std::string& familyType, Language language) const;

private:
    /// A category's definitions with their names picked out, in the order that the values follow.
    struct Template
    {
        std::string definitions;
        std::vector<std::string> names;
    };

    std::shared_ptr<const Template> TemplateOf(const std::string& categoryCode, Language language) const;

    const Catalogue& m_catalogue;
    mutable std::mutex m_mutex;
    mutable std::map<std::pair<std::string, Language>, std::shared_ptr<const Template>> m_templates;
};

} // namespace nuqcloud
