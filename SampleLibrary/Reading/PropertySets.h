#pragma once

#include "Reading/Kind.h"

#include <map>
#include <string>
#include <vector>

namespace samplelibrary {

/// A property set of ISO 16739-1 for one kind of element.
struct PropertySet
{
    std::string Name;                        ///< without the leading "Pset_"
    std::vector<std::string> ParameterCodes; ///< "<set>.<property>" in the order of the standard
};

/// Property sets by kind of element.
class PropertySets
{
public:
    /// Adds a property at the end of a set.
    void Add(const std::string& element, const std::string& set, const std::string& parameterCode);

    /// Parameter codes of the sets that hold for elements of @p kind with @p predefinedType: the common and occurrence
    /// sets, the sets named after the predefined type, and those @p extra sets that the category asks for by name.
    std::vector<std::string> ParameterCodes(
        const Kind& kind, const std::string& predefinedType, const std::vector<std::string>& extra) const;

private:
    std::map<std::string, std::vector<PropertySet>> m_setsByElement;
};

} // namespace samplelibrary
