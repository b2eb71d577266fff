#pragma once

#include "FamilyFiles/Recipe/RecipeValue.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What a member of a recipe's object looks like in JSON.
enum class MemberShape : std::uint8_t
{
    Number,      ///< a number or a formula
    Numbers,     ///< a list of as many numbers as the rule says
    Flag,        ///< true or false
    Condition,   ///< a formula that says yes or no
    Word,        ///< a text that is no formula
    Axis,        ///< "X", "-X" … or three numbers
    Object,      ///< members by the rule's own rules
    Profile,     ///< an object whose rules follow from its "shape"
    Profiles,    ///< a list of them
    PlanePoints, ///< the points of a polygon
    SpacePoints, ///< the points of a path
    Objects,     ///< a list of objects
    Box,         ///< two points
    EdgeChoice,  ///< "all", an object or a list of objects
    Step,        ///< the id of an earlier step, or a step
    Steps        ///< a list of them, or one
};

struct ObjectRule;

/// A member that an object may have.
struct MemberRule
{
    std::string_view name;
    MemberShape shape = MemberShape::Number;
    NumberKind number = NumberKind::Length;
    bool isRequired = false;
    std::size_t count = 0;            ///< of Numbers
    const ObjectRule* rule = nullptr; ///< of Object and Objects
};

/// The members that an object may have; others are refused, so that a slip of the pen does not go unseen.
struct ObjectRule
{
    std::string_view name; ///< of the operation or shape; empty for plain objects
    std::vector<MemberRule> members;
};

/// The rule of an operation; null when there is no such operation.
const ObjectRule* FindOperation(std::string_view name);

/// The rule of a profile's shape; null when there is no such shape.
const ObjectRule* FindProfileShape(std::string_view name);

/// The rule of a centre line.
const ObjectRule& CentreLineRule();

/// The rule of an edge filter.
const ObjectRule& EdgeFilterRule();

} // namespace familyfiles
