#pragma once

#include <cstddef>

namespace nuqcloud {

/// Longest texts, in characters, that a request may bring.
constexpr std::size_t kLongestKeyword = 200;
constexpr std::size_t kLongestId = 128;
constexpr std::size_t kLongestVersion = 64;

/// How many components may be asked for by their ids at once.
constexpr std::size_t kMostIds = 200;

/// Bytes of one part of a path, decoded.
constexpr std::size_t kLongestPathPart = 512;

} // namespace nuqcloud
