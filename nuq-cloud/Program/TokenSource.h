#pragma once

#include "Api/Tokens.h"

#include <string>

namespace nuqcloud {

/// The tokens that the server accepts: from the file when one is named, else from NUQ_CLOUD_TOKEN and
/// NUQ_CLOUD_TOKEN_QA, else the demo tokens. The file holds lines "prod=TOKEN" and "qa=TOKEN"; blank lines and lines
/// that begin with "#" are skipped.
/// @param file path, or empty for none
/// @throws std::runtime_error with a sentence for the user that never quotes a token
Tokens ReadTokens(const std::string& file);

} // namespace nuqcloud
