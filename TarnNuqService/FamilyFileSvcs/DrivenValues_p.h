#pragma once

#include "FamilyFileSvcs/WorkingParameters_p.h"

namespace tarnnuq {

/// Writes computed parameters into a specification: each into the first entry, in the order of the names, whose
/// definition has its id. Outputs that no entry or no definition knows are left out, null ones too.
/// @param definitions the family file's definitions; null writes nothing
/// @param changed set to true with the first value that is written
void WriteDrivenValues(const FamilyParameters& outputs, const zept::IFamilyParameterDefinitions* definitions,
    ISpecification& specification, bool& changed);

} // namespace tarnnuq
