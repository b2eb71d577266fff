#pragma once

#include <string>
#include <string_view>

namespace nuqcloud {

/// The gzip form of the bytes; the same bytes always give the same form. Empty when it would not be shorter.
std::string GzipCompress(std::string_view bytes);

/// True when an Accept-Encoding value allows gzip (by name or "*", and not with a weight of zero).
bool AcceptsGzip(std::string_view acceptEncoding);

} // namespace nuqcloud
