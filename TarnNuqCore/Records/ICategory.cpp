#include "Records/ICategory.h"

namespace tarnnuq {

ICategory::ICategory(const ICategory& other) = default;

ICategory& ICategory::operator=(const ICategory& other) = default;

ICategory::~ICategory() = default;

void ICategory::SetIsLeaf(const bool& isLeaf)
{
    IsLeaf = isLeaf;
}

} // namespace tarnnuq
