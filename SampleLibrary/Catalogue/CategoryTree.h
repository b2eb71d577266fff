#pragma once

#include "Catalogue/CategoryNode.h"
#include "Reading/ProductSource.h"

#include <cstddef>
#include <vector>

namespace samplelibrary {

/// The category tree, depth-first: each node is followed by those below it.
using CategoryTree = std::vector<CategoryNode>;

/// Largest number of end categories for each one of the source, so that ids keep within 32 bits.
constexpr std::size_t MaximumGroups = 90;

/// Makes the tree with @p endCategoryCount end categories; 0 stands for those of the source. Fewer are spread evenly
/// over the source's, more come as further groups of the same categories. Ids and codes of a category do not depend on
/// the number.
CategoryTree MakeCategoryTree(const ProductSource& source, std::size_t endCategoryCount);

/// Number of end categories in @p tree.
std::size_t CountEndCategories(const CategoryTree& tree);

/// Gives each end category its number of components, in tree order, and every node its range of positions.
void SetComponentCounts(CategoryTree& tree, const std::vector<std::size_t>& counts);

} // namespace samplelibrary
