#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace nuqcloud {

/// One finished exchange, as the access log tells it. Method and target are empty when the request was unreadable.
struct HttpExchange
{
    std::string id;
    std::string method;
    std::string target;
    std::string faults; ///< X-Nuq-Fault as the server received it
    int status = 0;
    std::size_t bodyBytes = 0; ///< as sent, after compression
    std::chrono::microseconds duration{0};
};

} // namespace nuqcloud
