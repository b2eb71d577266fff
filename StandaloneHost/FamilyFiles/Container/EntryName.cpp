#include "FamilyFiles/Container/EntryName.h"

#include "FamilyFiles/Utf8.h"

#include <algorithm>

namespace familyfiles {

namespace {

constexpr std::size_t LongestName = 200;

bool IsBadCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F || character == '\\' || character == ':';
}

bool HasParentFolder(std::string_view name)
{
    for (std::size_t begin = 0; begin <= name.size();) {
        const std::size_t end = std::min(name.find('/', begin), name.size());
        const std::string_view part = name.substr(begin, end - begin);
        if (part == ".." || part == ".") {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

} // namespace

bool IsGoodEntryName(std::string_view name)
{
    return !name.empty() && name.size() <= LongestName && name.front() != '/' &&
           std::none_of(name.begin(), name.end(), IsBadCharacter) && IsUtf8(name) && !HasParentFolder(name);
}

} // namespace familyfiles
