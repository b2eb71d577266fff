#include "FamilyFiles/Formulas/Scope.h"

namespace familyfiles {

Scope::Scope(const Scope& other) : m_names(other.m_names), m_numbers(other.m_numbers), m_texts(other.m_texts)
{
    IndexNames();
}

Scope& Scope::operator=(const Scope& other)
{
    Scope copy(other);
    *this = std::move(copy);
    return *this;
}

void Scope::IndexNames()
{
    m_slots.reserve(m_names.size());
    for (Slot slot = 0; slot < m_names.size(); ++slot) {
        m_slots.emplace(m_names[slot].name, slot);
    }
}

std::optional<Scope::Slot> Scope::Add(const std::string& name, ValueKind kind, Quantity quantity)
{
    if (Find(name)) {
        return std::nullopt;
    }
    m_names.push_back({name, kind, quantity});
    const Slot slot = m_names.size() - 1;
    m_slots.emplace(m_names.back().name, slot);
    m_numbers.push_back(0.0);
    m_texts.emplace_back();
    return slot;
}

std::optional<Scope::Slot> Scope::Find(std::string_view name) const
{
    const auto found = m_slots.find(name);
    return found != m_slots.end() ? std::optional<Slot>(found->second) : std::nullopt;
}

} // namespace familyfiles
