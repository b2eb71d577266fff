#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

namespace familyfiles {

/// A profile along the path that a sweep's members describe. Throws RecipeFailure when the path bends more tightly than
/// the profile reaches towards the inside, or comes too near to itself.
SweptShape MakeSweep(const RecipeValue& members, const MemberValues& values);

/// A skin over the sections that a loft's members describe. Throws RecipeFailure when sections do not fit together.
LoftShape MakeLoft(const RecipeValue& members, const MemberValues& values);

} // namespace familyfiles
