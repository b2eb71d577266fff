#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// The two halves of a request's address.
struct RequestTarget
{
    std::vector<std::string> segments; ///< the path's parts, decoded; a "/" in one of them came as %2F
    std::string query;                 ///< still encoded
    bool valid = false;                ///< false when a part is too long, badly encoded, not UTF-8 or holds a NUL
};

/// Takes an address apart; a full one ("http://host/path") counts as its path.
RequestTarget ParseTarget(std::string_view target, std::size_t longestSegment);

/// The address for logs and recordings: values of parameters that could be secrets are masked, bytes that could
/// break a line are encoded.
std::string RedactTarget(std::string_view target);

} // namespace nuqcloud
