#pragma once

#include "FamilyFiles/Reason.h"

#include <rapidjson/document.h>
#include <string_view>

namespace familyfiles {

/// Parses a manifest into @p document and holds it to the schema on the way.
/// @return false with a reason: manifest.too-deep, .not-json, .not-a-family, .newer-version, .schema, .duplicate-member
bool ParseManifest(std::string_view text, rapidjson::Document& document, Reason& reason);

} // namespace familyfiles
