#pragma once

#include <string>
#include <vector>

namespace nuqcloud {

/// What the cloud looks at of a request; header values are as received, empty when absent.
struct HttpRequest
{
    std::string id;     ///< for the log and the reply's X-Request-Id: the client's own when it is well formed
    std::string method; ///< upper case
    std::string target; ///< path and query as sent, still percent-encoded
    std::vector<std::string> authorization; ///< every Authorization header, in order
    std::string acceptLanguage;
    std::string range;
    std::string ifRange;
    std::string ifNoneMatch;
    std::string faults; ///< X-Nuq-Fault
    bool acceptsGzip = false;
    bool idIsClients = false; ///< the id came with the request
};

} // namespace nuqcloud
