#pragma once

#include "Products/Formula.h"
#include "Reading/ProductSource.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace samplelibrary {

/// The values that one family type gives to the parameters of its category, as texts and, for numbers, as numbers.
///
/// A number's text is rounded as its unit asks, and formulas see the rounded number: what the catalogue shows can be
/// checked by hand. Not for use by several threads at once.
class ValueSlots
{
public:
    /// @param source must live longer
    /// @param where  place in the source, for messages
    ValueSlots(const ProductSource& source, std::string where);

    /// Makes room for the parameter or, with a leading "_", the intermediate number @p name and gives its place. The
    /// same name gives the same place. Throws SourceError when there is no such parameter.
    std::size_t Place(const std::string& name);

    /// Forgets the value at @p place.
    void Clear(std::size_t place);

    /// Sets the value at @p place from a text of the source. Throws SourceError when the parameter cannot have it.
    void SetText(std::size_t place, const std::string& text);

    /// Sets the value at @p place from a formula; a yes/no parameter is true for any number but 0.
    void SetNumber(std::size_t place, double value);

    /// Whether the value at @p place comes from formulas rather than texts.
    bool IsComputed(std::size_t place) const;

    /// Text at @p place; null when none is given.
    const std::string* Text(std::size_t place) const;

    /// The numbers that formulas use, by name.
    Variables& Numbers() { return m_numbers; }

private:
    struct Slot
    {
        const Parameter* Definition; ///< null for an intermediate number
        int Decimals;
        double* Number; ///< null where the value is no number
        std::string Value;
        bool IsGiven;
    };

    Slot MakeSlot(const std::string& name);
    const Parameter& FindParameter(const std::string& name) const;
    void SetEntry(const Slot& slot, const std::string& key);
    [[noreturn]] void Refuse(const Slot& slot, const std::string& text) const;

    const ProductSource& m_source;
    std::string m_where;
    std::vector<Slot> m_slots;
    std::unordered_map<std::string, std::size_t> m_places;
    Variables m_numbers;
};

} // namespace samplelibrary
