#pragma once

#include <cstdint>

namespace tarnnuq {

/// One page of a paged list.
///
/// @tparam T the list of this page, a `std::vector<std::shared_ptr<R>>` of a record R
template <typename T>
class IPagedData
{
public:
    IPagedData() = default;
    IPagedData(const IPagedData&) = default;
    IPagedData(IPagedData&&) noexcept = default;
    IPagedData& operator=(const IPagedData&) = default;
    IPagedData& operator=(IPagedData&&) noexcept = default;
    virtual ~IPagedData() = default;

    T List{};                    ///< The records of this page.
    std::int32_t TotalCount = 0; ///< Number of records in all pages.
};

} // namespace tarnnuq
