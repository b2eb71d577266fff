#pragma once

#include "FamilyFiles/Manifest/ParameterDefinition.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace familyfiles {

/// What can be wrong with a manifest, in words.
Reason ManifestTooLarge(std::size_t limit);
Reason ManifestTooDeep(int limit);
/// @param offset byte at which reading stopped
Reason ManifestIsNoJson(std::string_view json, std::size_t offset);
Reason ManifestIsNoFamily();
Reason ManifestIsNewer(double version);
/// @param name    of the parameter, type or connector concerned, if any
/// @param path    to the value, as "/parameters/3/unit"
/// @param keyword of the schema that the value does not meet
Reason ManifestBreaksSchema(const std::string& name, const std::string& path, const std::string& keyword);
Reason ManifestRepeatsMember(const std::string& name);
Reason DuplicateParameterId(const std::string& parameter, const std::string& other);
/// @param what "parameter", "type" or "connector"
Reason DuplicateName(std::string_view what, const std::string& name);
Reason TooManyValues(std::size_t limit);
Reason BadName(const std::string& name);
Reason UnknownParameterInType(const std::string& type, const std::string& parameter);
Reason UnknownParameterUnit(const std::string& parameter, const std::string& unit);
Reason BadBounds(const std::string& parameter);
/// @param where what gives the value: a type's name, or empty for the definition itself
/// @param why   of IsPossible
Reason BadValueInManifest(const std::string& where, const Reason& why);

/// What can be wrong with a value that is given to a parameter.
Reason ValueOfWrongType(const std::string& parameter, StorageType wanted);
Reason ValueOutOfRange(const ParameterDefinition& parameter, const Value& value);
Reason ValueNotAllowed(const ParameterDefinition& parameter, const Value& value);

} // namespace familyfiles
