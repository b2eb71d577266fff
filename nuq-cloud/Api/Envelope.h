#pragma once

#include "Http/HttpReply.h"

#include <string>
#include <string_view>

namespace nuqcloud {

/// The text of a successful reply around ready JSON data.
std::string SuccessText(std::string_view data);

/// 200 with the data in its envelope.
HttpReply SuccessReply(std::string_view data);

/// An error in its envelope: {"code":..,"message":..,"data":null}.
HttpReply ErrorReply(int status, std::string_view code, std::string_view message);

} // namespace nuqcloud
