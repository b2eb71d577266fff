#pragma once

#include "Reading/ProductSource.h"

#include <set>
#include <string>
#include <vector>

namespace samplelibrary {

/// One parameter as an end category has it.
struct TemplateEntry
{
    const Parameter* Definition = nullptr;
    std::set<std::string> AllowedKeys; ///< of an enumeration, those that occur in the category
    std::string Formula;               ///< how the category works the value out; empty when it is given
    bool IsComputed = false;
};

/// The parameters of an end category in their fixed order: common ones, those of its sizes and products, those of the
/// standard's property sets that say nothing a product parameter says already. Every name occurs once in each language.
class PropertyTemplate
{
public:
    /// @param source must live longer. Throws SourceError when two parameters of the category share a name.
    PropertyTemplate(const ProductSource& source, const EndCategory& category);

    /// The parameters in order.
    const std::vector<TemplateEntry>& Entries() const { return m_entries; }

    /// JSON array of parameter definitions with names and display texts in @p language.
    std::string Definitions(Language language) const;

private:
    void Add(const std::string& code);
    void AddProductParameters(const EndCategory& category);
    void AddStandardProperties(const EndCategory& category);
    bool IsSaidAlready(const std::string& property) const;
    void SetAllowedKeys(const EndCategory& category);
    void SetFormulas(const EndCategory& category);
    void CheckNames(const EndCategory& category) const;
    TemplateEntry* Find(const std::string& code);

    const ProductSource& m_source;
    std::vector<TemplateEntry> m_entries;
    std::set<std::string> m_codes;
};

} // namespace samplelibrary
