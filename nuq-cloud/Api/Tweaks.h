#pragma once

#include <cstdint>

namespace nuqcloud {

/// Lies that an endpoint is told to tell in an otherwise right reply, so that clients can be tested against them.
struct Tweaks
{
    std::int64_t countError = 0; ///< added to every count and total
    bool catalogueChanged =
        false; ///< as if the first component of every list had been withdrawn and the others updated

    bool Any() const { return countError != 0 || catalogueChanged; }
};

} // namespace nuqcloud
