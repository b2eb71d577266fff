#include "Products/ValueSlots.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <cmath>
#include <limits>

namespace samplelibrary {

namespace {

constexpr int IntermediateDecimals = 6;
constexpr double NotGiven = std::numeric_limits<double>::quiet_NaN();

bool IsIntermediate(const std::string& name)
{
    return name.front() == '_';
}

} // namespace

ValueSlots::ValueSlots(const ProductSource& source, std::string where) : m_source(source), m_where(std::move(where)) {}

const Parameter& ValueSlots::FindParameter(const std::string& name) const
{
    const auto found = m_source.Parameters.find(name);
    if (found == m_source.Parameters.end()) {
        throw SourceError(m_where, "there is no parameter \"" + name + '"');
    }
    return found->second;
}

ValueSlots::Slot ValueSlots::MakeSlot(const std::string& name)
{
    if (IsIntermediate(name)) {
        return {nullptr, IntermediateDecimals, &m_numbers.emplace(name, NotGiven).first->second, {}, false};
    }
    const Parameter& parameter = FindParameter(name);
    if (parameter.Kind == ValueKind::Choice) {
        for (const auto& [key, entry] : m_source.Enumerations.at(parameter.Enumeration)) {
            for (const auto& [number, value] : entry.Numbers) {
                m_numbers.emplace(number, NotGiven);
            }
        }
    }
    const int decimals = parameter.Kind == ValueKind::Integer ? 0 : m_source.Units.at(parameter.Unit).Decimals;
    double* const number = parameter.IsNumeric() ? &m_numbers.emplace(name, NotGiven).first->second : nullptr;
    return {&parameter, decimals, number, {}, false};
}

std::size_t ValueSlots::Place(const std::string& name)
{
    const auto found = m_places.find(name);
    if (found != m_places.end()) {
        return found->second;
    }
    m_slots.push_back(MakeSlot(name));
    m_places.emplace(name, m_slots.size() - 1);
    return m_slots.size() - 1;
}

void ValueSlots::Clear(std::size_t place)
{
    Slot& slot = m_slots[place];
    slot.IsGiven = false;
    if (slot.Number != nullptr) {
        *slot.Number = NotGiven;
    }
}

void ValueSlots::Refuse(const Slot& slot, const std::string& text) const
{
    throw SourceError(
        m_where, '"' + text + "\" is no value of " + (slot.Definition == nullptr ? "a number" : slot.Definition->Code));
}

void ValueSlots::SetEntry(const Slot& slot, const std::string& key)
{
    const Enumeration& entries = m_source.Enumerations.at(slot.Definition->Enumeration);
    const auto entry = entries.find(key);
    if (entry == entries.end()) {
        Refuse(slot, key);
    }
    for (const auto& [number, value] : entry->second.Numbers) {
        m_numbers[number] = value;
    }
}

void ValueSlots::SetText(std::size_t place, const std::string& text)
{
    Slot& slot = m_slots[place];
    if (slot.Number != nullptr) {
        const std::optional<double> number = ParsedNumber(text);
        if (!number) {
            Refuse(slot, text);
        }
        SetNumber(place, *number);
        return;
    }
    if (slot.Definition->Kind == ValueKind::Choice) {
        SetEntry(slot, text);
    } else if (slot.Definition->Kind == ValueKind::Logic && text != "true" && text != "false") {
        Refuse(slot, text);
    }
    slot.Value = text;
    slot.IsGiven = true;
}

void ValueSlots::SetNumber(std::size_t place, double value)
{
    Slot& slot = m_slots[place];
    slot.IsGiven = true;
    if (slot.Number == nullptr) {
        slot.Value = value != 0.0 ? "true" : "false";
        return;
    }
    slot.Value = NumberText(value, slot.Decimals);
    *slot.Number = slot.Definition == nullptr ? value : ParsedNumber(slot.Value).value_or(value);
}

bool ValueSlots::IsComputed(std::size_t place) const
{
    const Slot& slot = m_slots[place];
    return slot.Number != nullptr || slot.Definition->Kind == ValueKind::Logic;
}

const std::string* ValueSlots::Text(std::size_t place) const
{
    return m_slots[place].IsGiven ? &m_slots[place].Value : nullptr;
}

} // namespace samplelibrary
