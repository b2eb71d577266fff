#pragma once

#include "zept/IFamilyParameter.h"
#include "zept/OwnerPtr.h"

#include <optional>
#include <vector>

namespace zept {
class IFamilyFile;
class IFamilyParameterDefinitions;
} // namespace zept

namespace tarnnuq {

class ISpecification;
struct WarningSource;

using FamilyParameters = std::vector<zept::OwnerPtr<zept::IFamilyParameter>>;

/// The values that a family file is asked with.
struct WorkingParameters
{
    FamilyParameters parameters; ///< Copies of the first type's parameters, in its order; none is null.
    const zept::IFamilyParameterDefinitions* definitions = nullptr; ///< The family file's own; may be null.
    bool anySet = false;                                            ///< Whether the specification gave a value.
};

/// Copies the parameters of a family's first type and sets the copies from a specification, whose entries are taken in
/// the order of their names.
/// @param source on whose behalf a null parameter in the family is reported
/// @return none when the family has no type or its first one is null
std::optional<WorkingParameters> PrepareParameters(
    zept::IFamilyFile& familyFile, const ISpecification& specification, const WarningSource& source);

} // namespace tarnnuq
