#pragma once

#include "Http/HttpExchange.h"

#include <cstdio>
#include <mutex>
#include <string>

namespace nuqcloud {

/// Writes one line a request: time, id, method, address without secrets, status, bytes, milliseconds,
/// and "fault=.." when faults were ordered.
/// Safe for many threads; a target that can no longer be written to is ignored.
class AccessLog
{
public:
    /// @param target a file, which is appended to, or "-" for standard error
    /// @throws std::runtime_error when the file cannot be opened
    explicit AccessLog(const std::string& target);
    ~AccessLog();

    AccessLog(const AccessLog&) = delete;
    AccessLog& operator=(const AccessLog&) = delete;

    void Write(const HttpExchange& exchange);

private:
    std::FILE* const m_file;
    std::mutex m_mutex;
};

/// The line for an exchange that ended at the given moment, without a line end.
std::string AccessLogLine(const HttpExchange& exchange, std::chrono::system_clock::time_point end);

} // namespace nuqcloud
