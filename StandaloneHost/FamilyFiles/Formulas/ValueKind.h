#pragma once

namespace familyfiles {

/// What formulas tell apart; whole numbers are numbers there.
enum class ValueKind
{
    Number,
    YesNo,
    Text
};

} // namespace familyfiles
