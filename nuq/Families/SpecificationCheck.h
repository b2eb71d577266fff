#pragma once

#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/Reason.h"
#include "Output/JsonWriter.h"
#include "Records/ISpecification.h"

#include <optional>
#include <string>
#include <vector>

namespace nuq {

class Session;

/** One value of a specification beside what the family knows about it. */
struct WantedValue
{
    std::string id;
    std::string name;
    std::string wanted;                    ///< as the specification has it
    std::optional<familyfiles::Value> own; ///< that of the first type; none when the family has no such parameter
    std::string unit;
    bool isDriven = false;
    familyfiles::Reason fault; ///< what is odd about the value, if anything
};

/** What one specification comes to. */
struct CheckedSpecification
{
    std::string name;
    bool yieldsGeometry = false;
    familyfiles::Reason reason; ///< why not
    std::vector<WantedValue> values;
};

/**
 * The values of a specification, in the order of their names: which of them the family does not know, computes itself,
 * cannot read or does not allow.
 */
std::vector<WantedValue> CompareValues(
    const familyfiles::FamilyModel& model, const tarnnuq::ISpecification& specification);

/** The table of these values. UTF-8. */
void ShowValues(Session& session, const std::vector<WantedValue>& values);

void WriteChecked(JsonWriter& json, const Session& session, const CheckedSpecification& checked);

} // namespace nuq
