#pragma once

#include "Products/ValueSlots.h"

#include <string>
#include <vector>

namespace samplelibrary {

/// A text with places for values: "DN{DN}" names the parameter DN.
class TextTemplate
{
public:
    /// @param slots where the values are found; must be the one that Filled() is given. Throws SourceError for an
    /// unknown name.
    TextTemplate(const std::string& text, ValueSlots& slots);

    /// The text with the values that @p slots holds now; a value that is not given leaves nothing.
    std::string Filled(const ValueSlots& slots) const;

    /// Whether there is no place in it.
    bool IsConstant() const { return m_parts.size() == 1 && !m_parts.front().HasPlace; }

private:
    struct Part
    {
        std::string Literal; ///< stands before the place
        bool HasPlace;
        std::size_t Place;
    };

    std::vector<Part> m_parts;
};

} // namespace samplelibrary
