#pragma once

#include <memory>
#include <new>

namespace tarnnuq {

/// The one way to make a pending reply for a caller: a failed allocation is a null pointer, which the service reports.
/// Released to the caller, who owns it, once its request is on the way.
template <typename Reply>
std::unique_ptr<Reply> MakePendingReply() noexcept
{
    try {
        return std::make_unique<Reply>();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace tarnnuq
