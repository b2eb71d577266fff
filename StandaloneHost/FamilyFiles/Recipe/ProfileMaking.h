#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/Profile.h"

namespace familyfiles {

/// The profile that @p value describes: outlines counter-clockwise, walls and repeated holes worked out.
/// Throws RecipeFailure when it crosses itself, when a wall leaves no opening or a hole touches something.
Profile MakeProfile(const RecipeValue& value, const MemberValues& values);

} // namespace familyfiles
