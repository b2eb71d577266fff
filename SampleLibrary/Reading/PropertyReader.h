#pragma once

#include "Reading/ProductSource.h"
#include "Reading/SourceFiles.h"

namespace samplelibrary {

/// Reads the property sets of ISO 16739-1 as parameters into @p source, with the names, value types and trade
/// equivalents that the files beside them give. Throws SourceError, also for a property without a Chinese name.
void ReadPropertySets(const SourceFiles& files, ProductSource& source);

/// The words of a property name, for example "Nominal air flow rate" for "NominalAirFlowRate".
std::string SpacedName(const std::string& property);

} // namespace samplelibrary
