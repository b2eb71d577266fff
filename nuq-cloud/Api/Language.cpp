#include "Api/Language.h"

#include "Text/Utf8.h"

#include <cstdlib>

namespace nuqcloud {
namespace {

struct WeightedTag
{
    std::string tag;
    double weight = 1.0;
};

std::string WithoutBlanks(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        if (c != ' ' && c != '\t') {
            out.push_back(c);
        }
    }
    return out;
}

/// Weights are 0 to 1 with at most three decimals, so plain digits do; anything else counts as 0.
double ParseWeight(std::string_view text)
{
    double value = 0.0;
    double unit = 1.0;
    for (const char c : text) {
        if (c == '.') {
            unit = 0.1;
        } else if (c < '0' || c > '9') {
            return 0.0;
        } else if (unit < 1.0) {
            value += unit * (c - '0');
            unit /= 10;
        } else {
            value = value * 10 + (c - '0');
        }
    }
    return value;
}

WeightedTag ParseItem(std::string_view item)
{
    const std::string text = ToLower(WithoutBlanks(item));
    const std::size_t weight = text.find(";q=");
    const std::string tag = text.substr(0, text.find(';'));
    return {tag, weight == std::string::npos ? 1.0 : ParseWeight(std::string_view(text).substr(weight + 3))};
}

bool IsLanguage(const std::string& tag, const char* primary)
{
    return tag == primary || tag.rfind(std::string(primary) + '-', 0) == 0;
}

} // namespace

Language PreferredLanguage(std::string_view acceptLanguage)
{
    double best = 0.0;
    Language language = Language::English;
    while (!acceptLanguage.empty()) {
        const std::size_t comma = acceptLanguage.find(',');
        const WeightedTag item = ParseItem(acceptLanguage.substr(0, comma));
        const bool chinese = IsLanguage(item.tag, "zh");
        if ((chinese || IsLanguage(item.tag, "en")) && item.weight > best) {
            best = item.weight;
            language = chinese ? Language::Chinese : Language::English;
        }
        acceptLanguage = comma == std::string_view::npos ? std::string_view() : acceptLanguage.substr(comma + 1);
    }
    return language;
}

} // namespace nuqcloud
