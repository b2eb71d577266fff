#include "Api/QueryParameters.h"

#include "Api/ApiError.h"
#include "Text/PercentEncoding.h"
#include "Text/Utf8.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace nuqcloud {
namespace {

constexpr std::int64_t kLargestPage = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kLargestPageSize = 200;
constexpr std::size_t kLongestNumber = 32;

std::string Decode(std::string_view text)
{
    if (auto decoded = PercentDecode(text, PlusSign::Blank)) {
        return *decoded;
    }
    throw ApiError(400, "INVALID_PARAMETER",
        "The query holds a part that is not percent-encoded UTF-8 without NUL: \"" +
            PercentEncode(text.substr(0, 80), "%=+-_.~") + "\".");
}

std::string Listed(const std::vector<std::string>& choices)
{
    std::string list;
    for (const std::string& choice : choices) {
        list += (list.empty() ? "" : ", ") + choice;
    }
    return "one of " + list + ", or nothing";
}

} // namespace

QueryParameters::QueryParameters(std::string_view query)
{
    while (!query.empty()) {
        const std::size_t end = query.find('&');
        Add(query.substr(0, end));
        query = end == std::string_view::npos ? std::string_view() : query.substr(end + 1);
    }
}

void QueryParameters::Add(std::string_view item)
{
    if (item.empty()) {
        return;
    }
    const std::size_t equals = item.find('=');
    const std::string_view value = equals == std::string_view::npos ? std::string_view() : item.substr(equals + 1);
    m_values[Decode(item.substr(0, equals))].push_back(Decode(value));
}

std::string QueryParameters::Text(const std::string& name, std::size_t longest) const
{
    const auto it = m_values.find(name);
    if (it == m_values.end()) {
        return {};
    }
    if (it->second.size() > 1) {
        throw InvalidParameter(name, it->second.back(), "it once, not " + std::to_string(it->second.size()) + " times");
    }
    const std::string& value = it->second.front();
    if (CodePointCount(value) > longest) {
        throw InvalidParameter(name, value, "at most " + std::to_string(longest) + " characters");
    }
    return value;
}

std::int64_t QueryParameters::Integer(
    const std::string& name, std::int64_t smallest, std::int64_t largest, std::int64_t absent) const
{
    const std::string text = Text(name, kLongestNumber);
    if (text.empty()) {
        return absent;
    }
    std::int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    if (!whole || value < smallest || value > largest) {
        throw InvalidParameter(
            name, text, "a whole number from " + std::to_string(smallest) + " to " + std::to_string(largest));
    }
    return value;
}

std::string QueryParameters::Choice(const std::string& name, const std::vector<std::string>& choices) const
{
    const std::string text = Text(name, kLongestNumber);
    if (!text.empty() && std::find(choices.begin(), choices.end(), text) == choices.end()) {
        throw InvalidParameter(name, text, Listed(choices));
    }
    return text;
}

PageRequest QueryParameters::Page() const
{
    PageRequest page;
    page.page = Integer("page", 1, kLargestPage, page.page);
    page.size = Integer("page_size", 1, kLargestPageSize, page.size);
    return page;
}

} // namespace nuqcloud
