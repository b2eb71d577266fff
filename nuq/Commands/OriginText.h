#pragma once

#include "Accounts/TokenOrigin.h"
#include "Application/ResolvedSetting.h"

#include <QString>

namespace nuq {

// Where a value comes from, in the language of the user; the host itself speaks English only, as its log does.

/** "environment variable NUQ_APP_DIR", "option --app-dir", "settings", "default". */
QString OriginText(const standalone::ResolvedSetting& setting);

/** "environment variable NUQ_TOKEN", "file ...", "none", "refused: ..."; never the token. */
QString OriginText(const standalone::TokenOrigin& token);

} // namespace nuq
