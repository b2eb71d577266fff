#pragma once

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"

namespace familyfiles {

/// Holds a manifest to what a schema cannot say: unique ids and names, known units, bounds that agree, possible values
/// in definitions and types. In time proportional to the number of parameters times that of types.
bool CheckManifest(const FamilyManifest& manifest, Reason& reason);

} // namespace familyfiles
