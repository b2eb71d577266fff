#pragma once

#include <memory>
#include <new>

namespace tarnnuq {

/// The one way to make a record: a failed allocation is a null pointer, which the caller reports and skips.
template <typename Record>
std::shared_ptr<Record> MakeRecord() noexcept
{
    try {
        return std::make_shared<Record>();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace tarnnuq
