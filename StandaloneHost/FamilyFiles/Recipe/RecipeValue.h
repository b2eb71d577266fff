#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What a number of a recipe is for, and with it which values it may have.
enum class NumberKind : std::uint8_t
{
    Length,     ///< mm, from the smallest to the largest length
    NoneLength, ///< as a length, or 0: there is none
    Coordinate, ///< mm, either sign
    Component,  ///< of a direction, either sign
    Angle,      ///< degrees above 0, up to a full turn
    Turn,       ///< degrees, either sign
    Count,      ///< whole, from 1
    NoneCount,  ///< whole, from 0
    Factor      ///< of a scaling
};

/// A member of a step with its formulas compiled and its step references found.
struct RecipeValue
{
    enum class Kind : std::uint8_t
    {
        Number,  ///< number
        Formula, ///< index: which one
        Flag,    ///< number is 1 or 0
        Word,    ///< text
        Step,    ///< index: which one
        List,    ///< items
        Object   ///< items with names
    };

    Kind kind = Kind::Number;
    NumberKind numberKind = NumberKind::Length;
    double number = 0;
    std::size_t index = 0;
    std::string name; ///< of a member in its object
    std::string text;
    std::vector<RecipeValue> items;

    /// The member of an object; null when it is not given.
    const RecipeValue* Find(std::string_view member) const
    {
        for (const RecipeValue& item : items) {
            if (item.name == member) {
                return &item;
            }
        }
        return nullptr;
    }
};

} // namespace familyfiles
