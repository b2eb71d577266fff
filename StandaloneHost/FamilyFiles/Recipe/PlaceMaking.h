#pragma once

#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/MemberValues.h"

namespace familyfiles {

/// The frame that a step's "at", "axis", "turn" and "centred" stand for. @p length is what the shape reaches along the
/// axis. Throws RecipeFailure.
Frame PlaceOf(const RecipeValue& members, const MemberValues& values, double length);

} // namespace familyfiles
