#pragma once

#include "Catalogue/Category.h"

#include <string_view>
#include <unordered_map>
#include <vector>

namespace nuqcloud {

/// All categories in the order in which they are served, with a quick way to one by its code. Never changes.
class CategoryTable
{
public:
    explicit CategoryTable(std::vector<Category> categories);

    CategoryTable(const CategoryTable&) = delete;
    CategoryTable& operator=(const CategoryTable&) = delete;

    const std::vector<Category>& All() const { return m_categories; }

    /// Null when there is none with that code.
    const Category* FindByCode(std::string_view code) const;

private:
    const std::vector<Category> m_categories;
    std::unordered_map<std::string_view, const Category*> m_byCode;
};

} // namespace nuqcloud
