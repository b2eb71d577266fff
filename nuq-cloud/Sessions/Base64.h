#pragma once

#include <string>

namespace nuqcloud {

/// Base64 with padding and without line breaks.
std::string EncodeBase64(const std::string& bytes);

/// @throws std::invalid_argument when the text is not such base64
std::string DecodeBase64(const std::string& text);

} // namespace nuqcloud
