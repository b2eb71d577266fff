#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <fstream>
#include <mutex>
#include <string>

namespace nuqcloud {

/// Writes every exchange of a session to a file, for SessionReplay. Safe for many threads.
class SessionRecorder
{
public:
    /// @param file replaced when it exists
    /// @throws std::runtime_error with a sentence for the user when it cannot be written
    explicit SessionRecorder(const std::string& file);

    /// Each exchange is on its way to the disk when this returns. Bodies above 128 MiB are left out.
    void Add(const HttpRequest& request, const HttpReply& reply);

private:
    std::ofstream m_stream;
    std::mutex m_mutex;
};

} // namespace nuqcloud
