#pragma once

#include "FamilyFiles/Manifest/FamilyManifest.h"

#include <string>

namespace familyfiles {

/// The manifest as JSON: the same for the same manifest on every machine, readable by ReadManifest, two blanks of
/// indentation. Unknown members stand behind the known ones.
/// REQUIRES: geometry and extras are empty or texts of JSON objects; numbers are finite
std::string WriteManifest(const FamilyManifest& manifest);

} // namespace familyfiles
