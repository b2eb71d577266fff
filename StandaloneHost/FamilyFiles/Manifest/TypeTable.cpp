#include "FamilyFiles/Manifest/TypeTable.h"

#include "FamilyFiles/Formulas/FormulaReasons.h"
#include "FamilyFiles/Manifest/ManifestReasons.h"

#include <algorithm>
#include <cmath>

namespace familyfiles {

namespace {

/// Texts of six decimals miss the number that they stand for by that much.
constexpr double Tolerance = 1e-9;
constexpr double AbsoluteTolerance = 5e-7;

double NumberIn(const Value& value)
{
    return StorageTypeOf(value) == StorageType::Integer ? std::get<int>(value) : std::get<double>(value);
}

double Slack(double bound)
{
    return std::max(std::fabs(bound) * Tolerance, AbsoluteTolerance);
}

bool IsNumeric(StorageType storageType)
{
    return storageType == StorageType::Integer || storageType == StorageType::FloatingPoint;
}

bool IsInside(const ParameterDefinition& parameter, double number)
{
    return (!parameter.minimum || number >= *parameter.minimum - Slack(*parameter.minimum)) &&
           (!parameter.maximum || number <= *parameter.maximum + Slack(*parameter.maximum));
}

bool IsSame(const Value& value, const Value& allowed)
{
    if (StorageTypeOf(value) != StorageType::FloatingPoint || StorageTypeOf(allowed) != StorageType::FloatingPoint) {
        return value == allowed;
    }
    return std::fabs(NumberIn(value) - NumberIn(allowed)) <= Slack(NumberIn(allowed));
}

} // namespace

std::optional<FormulaSet> MakeFormulas(const FamilyManifest& manifest, Reason& reason)
{
    std::vector<FormulaVariable> variables;
    variables.reserve(manifest.parameters.size());
    for (const ParameterDefinition& parameter : manifest.parameters) {
        variables.push_back({parameter.name, parameter.storageType, parameter.unit, parameter.formula});
    }
    return FormulaSet::Make(std::move(variables), reason);
}

std::vector<Value> GivenValues(const FamilyManifest& manifest, std::size_t type)
{
    std::vector<Value> values;
    values.reserve(manifest.parameters.size());
    for (const ParameterDefinition& parameter : manifest.parameters) {
        values.push_back(parameter.defaultValue ? *parameter.defaultValue : EmptyValue(parameter.storageType));
    }
    for (const auto& [parameter, value] : manifest.types[type].values) {
        values[parameter] = value;
    }
    return values;
}

bool IsPossible(const ParameterDefinition& parameter, const Value& value, Reason& reason)
{
    if (StorageTypeOf(value) != parameter.storageType) {
        reason = ValueOfWrongType(parameter.name, parameter.storageType);
        return false;
    }
    if (IsNumeric(parameter.storageType)) {
        const double number = NumberIn(value);
        if (!std::isfinite(number)) {
            reason = ValueNotFinite(parameter.name);
            return false;
        }
        if (!IsInside(parameter, number)) {
            reason = ValueOutOfRange(parameter, value);
            return false;
        }
    }
    const auto isSame = [&value](const Value& allowed) { return IsSame(value, allowed); };
    if (!parameter.allowed.empty() && std::none_of(parameter.allowed.begin(), parameter.allowed.end(), isSame)) {
        reason = ValueNotAllowed(parameter, value);
        return false;
    }
    return true;
}

bool ArePossible(const FamilyManifest& manifest, const std::vector<Value>& values, Reason& reason)
{
    for (std::size_t index = 0; index < values.size(); ++index) {
        const ParameterDefinition& parameter = manifest.parameters[index];
        if (!parameter.IsDriven() && !IsPossible(parameter, values[index], reason)) {
            return false;
        }
    }
    return true;
}

std::optional<std::vector<Value>> ComputedValues(
    const FamilyManifest& manifest, const FormulaSet& formulas, std::size_t type, Reason& reason)
{
    std::vector<Value> values = GivenValues(manifest, type);
    const bool isComputed = ArePossible(manifest, values, reason) && formulas.Evaluate(values, reason);
    return isComputed ? std::optional<std::vector<Value>>(std::move(values)) : std::nullopt;
}

} // namespace familyfiles
