#include "Http/RequestTarget.h"

#include "Text/PercentEncoding.h"
#include "Text/Utf8.h"

namespace nuqcloud {
namespace {

/// Drops scheme, user, host and fragment.
std::string_view PathAndQuery(std::string_view target)
{
    target = target.substr(0, target.find('#'));
    const std::size_t scheme = target.find("://");
    if (scheme == std::string_view::npos || target.front() == '/') {
        return target;
    }
    const std::size_t path = target.find_first_of("/?", scheme + 3);
    return path == std::string_view::npos ? std::string_view("/") : target.substr(path);
}

bool AddSegments(std::string_view path, std::size_t longest, std::vector<std::string>& segments)
{
    if (path.empty() || path.front() != '/') {
        return false;
    }
    while (!path.empty()) {
        path.remove_prefix(1);
        const std::size_t end = path.find('/');
        auto segment = PercentDecode(path.substr(0, end), PlusSign::Literal);
        if (!segment || segment->size() > longest) {
            return false;
        }
        segments.push_back(std::move(*segment));
        path = end == std::string_view::npos ? std::string_view() : path.substr(end);
    }
    return true;
}

bool MayBeSecret(std::string_view item)
{
    const std::string name = ToLower(item.substr(0, item.find('=')));
    for (const char* word : {"token", "auth", "password", "secret", "signature"}) {
        if (name.find(word) != std::string::npos) {
            return true;
        }
    }
    return false;
}

std::string RedactItem(std::string_view item)
{
    const std::size_t equals = item.find('=');
    if (equals == std::string_view::npos || !MayBeSecret(item)) {
        return std::string(item);
    }
    return std::string(item.substr(0, equals)) + "=***";
}

std::string RedactQuery(std::string_view query)
{
    std::string out;
    for (bool first = true; first || !query.empty(); first = false) {
        const std::size_t end = query.find('&');
        out += (first ? "" : "&") + RedactItem(query.substr(0, end));
        query = end == std::string_view::npos ? std::string_view() : query.substr(end + 1);
    }
    return out;
}

} // namespace

RequestTarget ParseTarget(std::string_view target, std::size_t longestSegment)
{
    const std::string_view whole = PathAndQuery(target);
    const std::size_t mark = whole.find('?');
    RequestTarget out;
    out.valid = AddSegments(whole.substr(0, mark), longestSegment, out.segments);
    out.query = mark == std::string_view::npos ? std::string() : std::string(whole.substr(mark + 1));
    return out;
}

std::string RedactTarget(std::string_view target)
{
    const std::string_view whole = PathAndQuery(target);
    const std::size_t mark = whole.find('?');
    std::string out(whole.substr(0, mark));
    if (mark != std::string_view::npos) {
        out += '?' + RedactQuery(whole.substr(mark + 1));
    }
    return PercentEncode(out, "%/?&=+-_.~!$'()*,;:@*");
}

} // namespace nuqcloud
