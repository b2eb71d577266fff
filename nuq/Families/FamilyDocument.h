#pragma once

#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/Manifest/Value.h"
#include "Output/JsonWriter.h"

#include <string>
#include <vector>

namespace nuq {

/** A value for people: yes and no in the user's language, texts made visible. UTF-8. */
std::string FamilyValueText(const familyfiles::Value& value);

/** A value as JSON has it: true, a number, a text. */
void WriteFamilyValue(JsonWriter& json, const familyfiles::Value& value);

/**
 * The document of "family show".
 * @param values computed, of the type
 * @param entries names of what the file holds
 */
void WriteFamily(JsonWriter& json, const familyfiles::FamilyModel& model, std::size_t type,
    const std::vector<familyfiles::Value>& values, const std::vector<std::string>& entries);

} // namespace nuq
