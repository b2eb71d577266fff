#include "Api/ApiError.h"

#include "Text/Utf8.h"

namespace nuqcloud {
namespace {

constexpr std::size_t kLongestQuote = 80;

/// A long value is cut at a character's border: the sentence has to stay readable.
std::string Quoted(const std::string& value)
{
    if (value.size() <= kLongestQuote) {
        return '"' + value + '"';
    }
    std::size_t end = kLongestQuote;
    while (!IsValidUtf8(std::string_view(value).substr(0, end))) {
        --end;
    }
    return '"' + value.substr(0, end) + "...\"";
}

} // namespace

ApiError InvalidParameter(const std::string& name, const std::string& value, const std::string& expected)
{
    return ApiError(
        400, "INVALID_PARAMETER", "Parameter \"" + name + "\" is " + Quoted(value) + "; expected " + expected + ".");
}

ApiError NotFound(const std::string& what, const std::string& id)
{
    return ApiError(404, "NOT_FOUND", "There is no " + what + ' ' + Quoted(id) + '.');
}

} // namespace nuqcloud
