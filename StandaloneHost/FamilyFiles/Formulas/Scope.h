#pragma once

#include "FamilyFiles/Formulas/Quantity.h"
#include "FamilyFiles/Formulas/ValueKind.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace familyfiles {

/// The names that expressions may use, each with its kind, its quantity and its present value.
///
/// Numbers are in the base unit of their quantity; yes and no are 1 and 0. Names are UTF-8, case counts. An expression
/// is compiled against the names and evaluated with the values of the same scope or of a copy of it. For one thread at
/// a time.
class Scope
{
public:
    using Slot = std::size_t;

    Scope() = default;
    Scope(const Scope& other);
    Scope& operator=(const Scope& other);
    Scope(Scope&&) = default;
    Scope& operator=(Scope&&) = default;

    /// Adds a name; its value is 0, no or empty. Slots are numbered in the order in which names are added.
    /// @return nothing when the name is taken already
    std::optional<Slot> Add(const std::string& name, ValueKind kind, Quantity quantity = Quantity::Plain);

    std::optional<Slot> Find(std::string_view name) const;

    std::size_t Size() const { return m_names.size(); }
    const std::string& Name(Slot slot) const { return m_names[slot].name; }
    ValueKind Kind(Slot slot) const { return m_names[slot].kind; }
    Quantity QuantityOf(Slot slot) const { return m_names[slot].quantity; }

    /// REQUIRES: the slot is of kind Number or YesNo.
    void SetNumber(Slot slot, double value) { m_numbers[slot] = value; }
    double Number(Slot slot) const { return m_numbers[slot]; }

    /// REQUIRES: the slot is of kind Text.
    void SetText(Slot slot, std::string value) { m_texts[slot] = std::move(value); }
    const std::string& Text(Slot slot) const { return m_texts[slot]; }

private:
    struct Entry
    {
        std::string name;
        ValueKind kind;
        Quantity quantity;
    };

    void IndexNames();

    /// A deque, because the index below refers to the names.
    std::deque<Entry> m_names;
    std::unordered_map<std::string_view, Slot> m_slots;
    std::vector<double> m_numbers;
    std::vector<std::string> m_texts;
};

} // namespace familyfiles
