#include "Http/RequestIds.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace nuqcloud {
namespace {

constexpr std::size_t kLongestId = 64;

bool IsIdCharacter(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' || c == '-' ||
           c == '_';
}

} // namespace

RequestIds::RequestIds() : m_run(std::random_device()()) {}

std::string RequestIds::Choose(const std::string& offered)
{
    if (!offered.empty() && offered.size() <= kLongestId &&
        std::all_of(offered.begin(), offered.end(), &IsIdCharacter)) {
        return offered;
    }
    char text[32];
    std::snprintf(text, sizeof(text), "%08x-%06u", static_cast<unsigned>(m_run), static_cast<unsigned>(m_next++));
    return text;
}

} // namespace nuqcloud
