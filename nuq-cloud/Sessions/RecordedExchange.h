#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <string>

namespace nuqcloud {

/// What two requests must have in common to be answered alike in a replay. Holds no secret.
std::string SessionKey(const HttpRequest& request);

/// One line of a session file, without a line end. The reply's id is kept when the server gave it.
std::string FormatExchange(const HttpRequest& request, const HttpReply& reply);

/// A line of a session file, read back.
struct RecordedExchange
{
    std::string key;
    HttpReply reply;
};

/// @throws std::exception when the line is not one that FormatExchange wrote
RecordedExchange ParseExchange(const std::string& line);

/// The first line of every session file.
std::string SessionHeader();

} // namespace nuqcloud
