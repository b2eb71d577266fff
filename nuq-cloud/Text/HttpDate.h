#pragma once

#include <ctime>
#include <string>

namespace nuqcloud {

/// A moment as HTTP headers have it: "Tue, 14 Nov 2023 22:13:20 GMT", whatever the locale.
std::string FormatHttpDate(std::time_t moment);

} // namespace nuqcloud
