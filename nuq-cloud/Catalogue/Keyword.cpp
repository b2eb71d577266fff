#include "Catalogue/Keyword.h"

#include "Text/Utf8.h"

namespace nuqcloud {
namespace {

constexpr std::string_view kIdeographicBlank = "\xE3\x80\x80";

std::string WithPlainBlanks(std::string text)
{
    for (std::size_t at = text.find(kIdeographicBlank); at != std::string::npos;
         at = text.find(kIdeographicBlank, at)) {
        text.replace(at, kIdeographicBlank.size(), " ");
    }
    return text;
}

} // namespace

std::vector<std::string> KeywordWords(std::string_view keyword)
{
    constexpr std::string_view kBlanks = " \t\r\n\v\f";
    const std::string text = WithPlainBlanks(ToLower(keyword));
    std::vector<std::string> words;
    for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string::npos;) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
        words.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(kBlanks, end);
    }
    return words;
}

} // namespace nuqcloud
