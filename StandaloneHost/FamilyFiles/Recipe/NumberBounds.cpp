#include "FamilyFiles/Recipe/NumberBounds.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"
#include "FamilyFiles/Recipe/RecipeLimits.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace familyfiles {

namespace {

struct Bounds
{
    double low;
    double high;
    bool mayBeNone; ///< 0 is possible too
    bool isWhole;
    const char* unit;
};

Bounds BoundsOf(NumberKind kind)
{
    constexpr double length = RecipeLimits::LargestLength;
    switch (kind) {
    case NumberKind::Length:
        return {RecipeLimits::SmallestLength, length, false, false, " mm"};
    case NumberKind::NoneLength:
        return {RecipeLimits::SmallestLength, length, true, false, " mm"};
    case NumberKind::Coordinate:
    case NumberKind::Component:
        return {-length, length, true, false, kind == NumberKind::Component ? "" : " mm"};
    case NumberKind::Angle:
        return {RecipeLimits::SmallestAngle, 360, false, false, "°"};
    case NumberKind::Turn:
        return {-RecipeLimits::LargestTurn, RecipeLimits::LargestTurn, true, false, "°"};
    case NumberKind::Count:
        return {1, RecipeLimits::MostOf, false, true, ""};
    case NumberKind::NoneCount:
        return {1, RecipeLimits::MostOf, true, true, ""};
    case NumberKind::Factor:
        break;
    }
    return {RecipeLimits::SmallestFactor, RecipeLimits::LargestFactor, false, false, ""};
}

/// A formula that should give the bound itself may miss it by rounding.
bool IsWithin(double number, const Bounds& bounds)
{
    constexpr double slack = 1e-9;
    return number >= bounds.low - slack * std::abs(bounds.low) && number <= bounds.high + slack * std::abs(bounds.high);
}

} // namespace

std::string NumberText(double number)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.10g", number);
    return text.data();
}

void CheckNumber(double number, NumberKind kind, const std::string& member)
{
    if (!std::isfinite(number)) {
        throw RecipeFailure(
            "geometry.not-finite", '"' + member + "\" is no finite number", "“" + member + "”不是有限数值");
    }
    const Bounds bounds = BoundsOf(kind);
    const bool isPossible = IsWithin(number, bounds) || (bounds.mayBeNone && number == 0);
    if (isPossible && (!bounds.isWhole || std::abs(number - std::round(number)) < 1e-6)) {
        return;
    }
    Reason reason;
    reason.code = "geometry.out-of-range";
    reason.wanted = NumberText(number) + bounds.unit;
    reason.possible = NumberText(bounds.low) + " … " + NumberText(bounds.high) + bounds.unit;
    const std::string what = bounds.isWhole ? "a whole number from " : "from ";
    reason.english = '"' + member + "\" is " + reason.wanted + "; possible is " + what + NumberText(bounds.low) +
                     " to " + NumberText(bounds.high) + bounds.unit;
    reason.chinese =
        "“" + member + "”为 " + reason.wanted + "，允许" + (bounds.isWhole ? "整数 " : " ") + reason.possible;
    throw RecipeFailure(reason);
}

} // namespace familyfiles
