#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace nuqcloud {

/// Answers requests from a recording, byte for byte as they were answered then. Safe for many threads.
///
/// A request that was made several times gets its replies in their order, and the last one from then on. One that was
/// never made gets 404 with the code NOT_RECORDED. Tokens are not looked at: they are not recorded.
class SessionReplay
{
public:
    /// @throws std::runtime_error with a sentence for the user when the file is not a recording
    explicit SessionReplay(const std::string& file);

    HttpReply Answer(const HttpRequest& request) const;

private:
    struct Replies
    {
        std::vector<HttpReply> list;
        std::size_t next = 0;
    };

    mutable std::mutex m_mutex;
    mutable std::map<std::string, Replies> m_replies;
};

} // namespace nuqcloud
