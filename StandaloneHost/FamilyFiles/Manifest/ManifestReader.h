#pragma once

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <string_view>

namespace familyfiles {

/// Reads a manifest: JSON, held to the schema of docs/family-file.schema.json, then to what a schema cannot say.
///
/// Formulas are not looked at here, nor is the recipe. Takes time and memory in proportion to the text.
/// @return nothing with a reason: manifest.too-large, .too-deep, .not-json, .not-a-family, .newer-version, .schema,
///         .duplicate-member, .duplicate-id, .duplicate-name, .bad-name, .unknown-name, .unknown-unit, .bad-value,
///         .bad-bounds, .too-many-values
std::optional<FamilyManifest> ReadManifest(std::string_view json, Reason& reason);

} // namespace familyfiles
