#include "FamilyFiles/Manifest/ManifestCheck.h"

#include "FamilyFiles/Formulas/Unit.h"
#include "FamilyFiles/Manifest/ManifestReasons.h"
#include "FamilyFiles/Manifest/TypeTable.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace familyfiles {

namespace {

bool IsNumeric(const ParameterDefinition& parameter)
{
    return parameter.storageType == StorageType::Integer || parameter.storageType == StorageType::FloatingPoint;
}

/// Brackets, because formulas write names that are no words in them.
bool IsGoodName(const std::string& name)
{
    return std::none_of(name.begin(), name.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < 0x20 || byte == 0x7F || character == '[' || character == ']';
    });
}

/// GUIDs that differ in the case of their letters alone are the same.
std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return text;
}

/// The last of the names is named when it is there before.
template <typename Things>
bool HaveUniqueNames(const Things& things, std::string_view what, Reason& reason)
{
    std::unordered_set<std::string_view> names;
    for (const auto& thing : things) {
        if (!names.insert(thing.name).second) {
            reason = DuplicateName(what, thing.name);
            return false;
        }
    }
    return true;
}

bool HaveUniqueIds(const std::vector<ParameterDefinition>& parameters, Reason& reason)
{
    std::unordered_map<std::string, const std::string*> names;
    for (const ParameterDefinition& parameter : parameters) {
        const auto [known, isNew] = names.emplace(LowerCase(parameter.id), &parameter.name);
        if (!isNew) {
            reason = DuplicateParameterId(parameter.name, *known->second);
            return false;
        }
    }
    return true;
}

bool HasGoodBounds(const ParameterDefinition& parameter)
{
    if ((parameter.minimum || parameter.maximum) && !IsNumeric(parameter)) {
        return false;
    }
    return !parameter.minimum || !parameter.maximum || *parameter.minimum <= *parameter.maximum;
}

bool HasGoodValues(const ParameterDefinition& parameter, Reason& reason)
{
    const auto isPossible = [&](const Value& value) {
        Reason why;
        if (!IsPossible(parameter, value, why)) {
            reason = BadValueInManifest({}, why);
            return false;
        }
        return true;
    };
    return std::all_of(parameter.allowed.begin(), parameter.allowed.end(), isPossible) &&
           (!parameter.defaultValue || isPossible(*parameter.defaultValue));
}

bool IsGoodParameter(const ParameterDefinition& parameter, Reason& reason)
{
    if (!IsGoodName(parameter.name)) {
        reason = BadName(parameter.name);
        return false;
    }
    if (Unit::Find(parameter.unit) == nullptr) {
        reason = UnknownParameterUnit(parameter.name, parameter.unit);
        return false;
    }
    if (!HasGoodBounds(parameter)) {
        reason = BadBounds(parameter.name);
        return false;
    }
    return HasGoodValues(parameter, reason);
}

bool HasPossibleValues(const FamilyManifest& manifest, std::size_t type, Reason& reason)
{
    Reason why;
    if (!ArePossible(manifest, GivenValues(manifest, type), why)) {
        reason = BadValueInManifest(manifest.types[type].name, why);
        return false;
    }
    return true;
}

} // namespace

bool CheckManifest(const FamilyManifest& manifest, Reason& reason)
{
    if (manifest.types.size() * manifest.parameters.size() > FamilyManifest::MaximalValues) {
        reason = TooManyValues(FamilyManifest::MaximalValues);
        return false;
    }
    if (!HaveUniqueNames(manifest.parameters, "parameter", reason) || !HaveUniqueIds(manifest.parameters, reason) ||
        !HaveUniqueNames(manifest.types, "type", reason) ||
        !HaveUniqueNames(manifest.connectors, "connector", reason)) {
        return false;
    }
    for (const ParameterDefinition& parameter : manifest.parameters) {
        if (!IsGoodParameter(parameter, reason)) {
            return false;
        }
    }
    for (std::size_t type = 0; type < manifest.types.size(); ++type) {
        if (!HasPossibleValues(manifest, type, reason)) {
            return false;
        }
    }
    return true;
}

} // namespace familyfiles
