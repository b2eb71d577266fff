#include "Http/EntityTags.h"

namespace nuqcloud {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the first tag off the list; one that has no end takes all the rest.
std::string_view TakeTag(std::string_view& list)
{
    const std::size_t open = list.find('"');
    const std::size_t close = open == std::string_view::npos ? open : list.find('"', open + 1);
    if (close == std::string_view::npos) {
        list = {};
        return {};
    }
    const std::string_view tag = list.substr(open, close - open + 1);
    list.remove_prefix(close + 1);
    return tag;
}

} // namespace

std::string GzipTag(const std::string& tag)
{
    return tag.substr(0, tag.size() - 1) + "-gzip\"";
}

std::string KnownTag(std::string_view ifNoneMatch, const std::string& tag)
{
    if (Trimmed(ifNoneMatch) == "*") {
        return tag;
    }
    const std::string packed = GzipTag(tag);
    while (!ifNoneMatch.empty()) {
        const std::string_view candidate = TakeTag(ifNoneMatch);
        if (candidate == tag || candidate == packed) {
            return std::string(candidate);
        }
    }
    return {};
}

} // namespace nuqcloud
