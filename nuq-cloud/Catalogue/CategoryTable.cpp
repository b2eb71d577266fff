#include "Catalogue/CategoryTable.h"

#include <utility>

namespace nuqcloud {

CategoryTable::CategoryTable(std::vector<Category> categories) : m_categories(std::move(categories))
{
    m_byCode.reserve(m_categories.size());
    for (const Category& category : m_categories) {
        m_byCode.emplace(category.code, &category);
    }
}

const Category* CategoryTable::FindByCode(std::string_view code) const
{
    const auto it = m_byCode.find(code);
    return it == m_byCode.end() ? nullptr : it->second;
}

} // namespace nuqcloud
