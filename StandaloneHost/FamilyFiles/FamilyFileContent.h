#pragma once

#include "FamilyFiles/Container/ContainerEntry.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"

#include <vector>

namespace familyfiles {

/// All that a family file holds.
struct FamilyFileContent
{
    FamilyManifest manifest;
    /// All but the manifest, in the file's order: pictures, drawings and what newer programs have put there.
    std::vector<ContainerEntry> entries;
};

} // namespace familyfiles
