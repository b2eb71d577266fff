#pragma once

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "TarnNuqService/ResponseHandlers/JsonShapes.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace testsupport {

/// Expects a member that is missing or of another type to leave its default, and nothing else, in the record.
/// @param good an object that fills the whole record
/// @param expected what becomes of it
/// @param map makes the record of an object: a shared pointer, null when there is not just one
template <typename Record, typename Map>
void ExpectDefaultForOtherTypes(
    const MemberRow<Record>& member, const QJsonObject& good, Record expected, const Map& map)
{
    member.reset(expected);
    for (const JsonShape& shape : ShapesExcept(member.accepted)) {
        EXPECT_EQ(Describe(map(With(good, member.name, shape.value))), Describe(expected)) << shape.name;
    }
}

/// The one record of a list; null when there are none or more.
template <typename Record>
std::shared_ptr<Record> Only(const std::vector<std::shared_ptr<Record>>& records)
{
    return records.size() == 1 ? records.front() : nullptr;
}

/// The one definition of a property; null when there are none or more, or when it stands under another name.
inline std::shared_ptr<tarnnuq::IParameterDefinition> Only(
    const std::map<std::wstring, std::shared_ptr<tarnnuq::IParameterDefinition>>& definitions)
{
    const bool isOne = definitions.size() == 1 && definitions.begin()->second;
    return isOne && definitions.begin()->second->Name == definitions.begin()->first ? definitions.begin()->second
                                                                                    : nullptr;
}

/// The definition of the one parameter of a specification, by the same rules.
inline std::shared_ptr<tarnnuq::IParameterDefinition> Only(
    const std::map<std::wstring, std::shared_ptr<tarnnuq::IParameter>>& parameters)
{
    std::map<std::wstring, std::shared_ptr<tarnnuq::IParameterDefinition>> definitions;
    for (const auto& [name, parameter] : parameters) {
        definitions[name] = parameter ? parameter->Definition : nullptr;
    }
    return Only(definitions);
}

} // namespace testsupport
