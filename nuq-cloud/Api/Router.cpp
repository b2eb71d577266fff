#include "Api/Router.h"

#include <optional>
#include <utility>

namespace nuqcloud {
namespace {

std::vector<std::string> Split(const std::string& pattern)
{
    std::vector<std::string> segments;
    for (std::size_t begin = 1; begin <= pattern.size();) {
        const std::size_t end = std::min(pattern.find('/', begin), pattern.size());
        segments.push_back(pattern.substr(begin, end - begin));
        begin = end + 1;
    }
    return segments;
}

bool IsParameter(const std::string& segment)
{
    return !segment.empty() && segment.front() == '{';
}

std::optional<std::vector<std::string>> Fit(
    const std::vector<std::string>& pattern, const std::vector<std::string>& segments)
{
    if (pattern.size() != segments.size()) {
        return std::nullopt;
    }
    std::vector<std::string> parameters;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (IsParameter(pattern[i]) && !segments[i].empty()) {
            parameters.push_back(segments[i]);
        } else if (pattern[i] != segments[i]) {
            return std::nullopt;
        }
    }
    return parameters;
}

} // namespace

void Router::Add(const std::string& pattern, Endpoint endpoint)
{
    m_routes.push_back({pattern, Split(pattern), std::move(endpoint)});
}

Router::Match Router::Find(const std::vector<std::string>& segments) const
{
    for (const Route& route : m_routes) {
        if (auto parameters = Fit(route.segments, segments)) {
            return {&route.endpoint, std::move(*parameters)};
        }
    }
    return {};
}

std::vector<std::string> Router::Patterns() const
{
    std::vector<std::string> patterns;
    for (const Route& route : m_routes) {
        patterns.push_back(route.pattern);
    }
    return patterns;
}

} // namespace nuqcloud
