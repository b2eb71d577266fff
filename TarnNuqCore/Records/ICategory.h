#pragma once

#include "TarnNuqCoreExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarnnuq {

/// A node of the component category tree.
///
/// Cloud replies give a flat list in which parents and children are matched by `Code` and `ParentCode`;
/// the local category tree fills the text ids and the name path as well. Plain data: whoever holds the
/// shared pointer may read and write every member, on one thread at a time.
class TARNNUQCORE_EXPORT ICategory
{
public:
    ICategory() = default;
    ICategory(const ICategory& other);
    ICategory& operator=(const ICategory& other);
    virtual ~ICategory();

    /// Stores whether no other category of the same list names this one's `Code` as its `ParentCode`.
    /// @param isLeaf the answer for this category
    void SetIsLeaf(const bool& isLeaf);

    std::int32_t Id = 0;                ///< Numeric id on the cloud service.
    std::wstring IdText;                ///< Id as text; set by the local tree only ("0" for its root).
    std::wstring Name;                  ///< Display name.
    std::int32_t ParentId = 0;          ///< Numeric id of the parent; 0 when there is none.
    std::wstring ParentIdText;          ///< Parent id as text; set by the local tree only.
    double Weight = 0.0;                ///< Sort weight, ascending.
    std::int32_t Count = 0;             ///< Number of components in the category.
    std::wstring Code;                  ///< Category code, the key by which parents and children are matched.
    std::wstring ParentCode;            ///< Code of the parent category; empty for a top category.
    std::vector<std::wstring> NamePath; ///< Names from the top down to this category; local tree only.
    bool IsLeaf = false;                ///< True for a category without children; written through SetIsLeaf().
};

} // namespace tarnnuq
