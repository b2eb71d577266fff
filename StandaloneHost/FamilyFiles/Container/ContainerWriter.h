#pragma once

#include "FamilyFiles/Container/ContainerEntry.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// An archive of the entries, in their order; the same bytes for the same entries on every machine and at every time.
/// @return nothing with a reason: container.bad-entry-name, .duplicate-entry, .too-many-entries, .entry-too-large
std::optional<std::string> WriteContainer(const std::vector<ContainerEntry>& entries, Reason& reason);

} // namespace familyfiles
