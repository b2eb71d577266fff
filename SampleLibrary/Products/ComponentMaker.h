#pragma once

#include "Products/ComponentRow.h"
#include "Products/LineEvaluator.h"
#include "Products/PropertyTemplate.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace samplelibrary {

/// Makes the components of one end category one at a time. Not for use by several threads at once.
class ComponentMaker
{
public:
    /// @param source, category must live longer
    /// @param name   name of the category, from which component names are made
    /// @param idStem beginning of the components' ids
    /// Throws SourceError, also when no combination of the category has a family type.
    ComponentMaker(const ProductSource& source, const EndCategory& category, BilingualText name, std::string idStem);

    /// Number of components that differ in more than their series.
    std::size_t NaturalCount() const { return m_combinations.size(); }

    /// Makes component @p index; from NaturalCount() on the same combinations come again as further series. An index
    /// stands for the same component whatever the size of the library. Throws SourceError.
    ComponentRow Make(std::size_t index);

    /// The parameters that the family types give values to.
    const PropertyTemplate& Properties() const { return m_properties; }

private:
    std::string AxisText(std::size_t axis, Language language) const;
    std::string Name(Language language, int series) const;
    std::string TypesJson(ComponentRow& row);
    void CheckTypeNames(const ComponentRow& row) const;

    const ProductSource& m_source;
    const EndCategory& m_category;
    BilingualText m_name;
    std::string m_idStem;
    PropertyTemplate m_properties;
    LineEvaluator m_line;
    std::vector<std::size_t> m_combinations; ///< those that have family types
    std::vector<std::size_t> m_places;       ///< of the template's parameters among the line's values
    std::size_t m_reference;
};

} // namespace samplelibrary
