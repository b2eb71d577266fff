#pragma once

#include <cstddef>
#include <cstring>

namespace testsupport {

/// The place of a virtual operation in its class's table of virtual functions, as the Itanium C++ ABI lays it out.
/// @return counted from 0, a destructor taking two places; -1 for an operation that is not virtual
template <typename Member>
std::ptrdiff_t VirtualSlot(Member member)
{
    std::ptrdiff_t words[2] = {};
    static_assert(sizeof member == sizeof words, "no pointer to member of this ABI");
    std::memcpy(words, &member, sizeof words);
    // Processors whose functions may have odd addresses mark a virtual operation in the second word.
    const bool markedBehind = (words[1] & 1) != 0;
    const bool markedInFront = (words[0] & 1) != 0;
    if (!markedBehind && !markedInFront) {
        return -1;
    }
    return (words[0] - (markedBehind ? 0 : 1)) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

} // namespace testsupport
