#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace nuqcloud {

/// A body that many replies share, with its compressed form ready.
struct PreparedBody
{
    std::string plain;
    std::string gzip; ///< empty when compressing would not pay
};

/// A body that is made while it is sent, for replies too long to be kept in memory.
struct GeneratedBody
{
    std::size_t length = 0;
    /// Makes up to `count` bytes that begin at `offset`; called with growing offsets. None means that it failed.
    std::function<std::string(std::size_t offset, std::size_t count)> make;
};

/// One reply, before its transport encoding.
struct HttpReply
{
    int status = 200;
    std::string id; ///< X-Request-Id when the request brought none; empty: the request's own
    std::string contentType = "application/json";
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    std::shared_ptr<const PreparedBody> prepared;   ///< takes the place of `body` when set
    std::shared_ptr<const GeneratedBody> generated; ///< takes the place of both when set
    bool compressible = true;                       ///< false for pictures and for parts of files
};

/// The bytes of the body, wherever they come from; shorter than promised where making them failed.
std::string WholeBody(const HttpReply& reply);

} // namespace nuqcloud
