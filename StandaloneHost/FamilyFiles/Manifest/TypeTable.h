#pragma once

#include "FamilyFiles/Formulas/FormulaSet.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// The formulas of a family's parameters; variable n is parameter n.
std::optional<FormulaSet> MakeFormulas(const FamilyManifest& manifest, Reason& reason);

/// A value for each parameter of one type: what the type gives, else the parameter's default, else 0, no or empty.
/// Driven parameters have what the file says or nothing of it; FormulaSet::Evaluate works them out.
std::vector<Value> GivenValues(const FamilyManifest& manifest, std::size_t type);

/// Whether a value may be given to a parameter: of its storage type, finite, inside its bounds, one of those allowed.
/// Numbers may miss an allowed value or a bound by what a text of six decimals loses.
/// @return false with a reason: value.wrong-type, .not-finite, .out-of-range, .not-allowed
bool IsPossible(const ParameterDefinition& parameter, const Value& value, Reason& reason);

/// Whether the values of all driving parameters are possible.
bool ArePossible(const FamilyManifest& manifest, const std::vector<Value>& values, Reason& reason);

/// All values of one type, the driven ones computed and the driving ones checked.
std::optional<std::vector<Value>> ComputedValues(
    const FamilyManifest& manifest, const FormulaSet& formulas, std::size_t type, Reason& reason);

} // namespace familyfiles
