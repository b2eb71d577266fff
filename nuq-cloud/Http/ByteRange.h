#pragma once

#include <cstddef>
#include <string_view>

namespace nuqcloud {

/// The part of a body that a request asks for.
struct ByteRange
{
    enum class Kind
    {
        Whole,
        Part,
        Unsatisfiable
    };

    Kind kind = Kind::Whole;
    std::size_t first = 0;
    std::size_t length = 0;
};

/// Reads a Range value with one range ("bytes=0-99", "bytes=100-", "bytes=-100"). Several ranges, other units and
/// what cannot be read mean the whole body, as HTTP allows.
ByteRange ChooseRange(std::string_view header, std::size_t size);

} // namespace nuqcloud
