#pragma once

#include <atomic>
#include <cstdint>
#include <string>

namespace nuqcloud {

/// Names requests, so that a log line, a reply and a client's message can be matched.
class RequestIds
{
public:
    RequestIds();

    /// The client's own id when it is 1 to 64 letters, digits, dots, hyphens or underscores; else a new one.
    std::string Choose(const std::string& offered);

private:
    const std::uint32_t m_run; ///< differs from run to run
    std::atomic<std::uint32_t> m_next{1};
};

} // namespace nuqcloud
