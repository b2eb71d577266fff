#pragma once

#include "FamilyFiles/Container/ContainerEntry.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// As FamilyBackend::WriteContainer.
std::optional<std::string> WriteZipContainer(const std::vector<ContainerEntry>& entries, Reason& reason);

} // namespace familyfiles
