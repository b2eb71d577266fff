#pragma once

#include "Api/ApiRequest.h"
#include "Http/HttpReply.h"

#include <functional>
#include <string>
#include <vector>

namespace nuqcloud {

/// Finds the endpoint of a path. Filled once at start, then read by many threads.
class Router
{
public:
    using Endpoint = std::function<HttpReply(const ApiRequest&)>;

    /// An endpoint with the values of its path's parameters.
    struct Match
    {
        const Endpoint* endpoint = nullptr; ///< null when no route fits
        std::vector<std::string> parameters;
    };

    /// @param pattern like "/v1/components/{id}"; of two that fit, the one added first wins
    void Add(const std::string& pattern, Endpoint endpoint);

    /// @param segments the path's decoded parts
    Match Find(const std::vector<std::string>& segments) const;

    /// All patterns, in the order in which they were added.
    std::vector<std::string> Patterns() const;

private:
    struct Route
    {
        std::string pattern;
        std::vector<std::string> segments;
        Endpoint endpoint;
    };

    std::vector<Route> m_routes;
};

} // namespace nuqcloud
