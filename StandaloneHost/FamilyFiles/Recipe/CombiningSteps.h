#pragma once

#include "FamilyFiles/Recipe/MemberValues.h"
#include "FamilyFiles/Recipe/RecipeContent.h"
#include "FamilyFiles/Recipe/ShapePlan.h"

#include <cstddef>
#include <vector>

namespace familyfiles {

/// What each step of a recipe has become in the plan: indices of the plan's steps; none when it is absent.
using StepBodies = std::vector<std::vector<std::size_t>>;

/// The step of a plan that joins, treats or copies earlier ones; name and material still open. Arguments that are
/// absent are left out.
struct CombinedStep
{
    enum class Outcome
    {
        Step,  ///< step
        Same,  ///< nothing to be done: the bodies stand for it
        Absent ///< nothing is left of its arguments
    };

    Outcome outcome = Outcome::Absent;
    PlanStep step;
    std::vector<std::size_t> bodies;
};

/// REQUIRES: @p step does not make a solid of its own. Throws RecipeFailure.
CombinedStep Combine(const RecipeStep& step, const MemberValues& values, const StepBodies& bodies);

} // namespace familyfiles
