#include "support/BuiltSolid.h"

#include <gtest/gtest.h>

namespace familyfiles::testing {

const OcctKernel& Kernel()
{
    static const OcctKernel kernel;
    return kernel;
}

BuildResult SolidOf(const std::string& recipe, const RecipeParameters& parameters)
{
    const PlanOutcome outcome = PlanOf(recipe, parameters);
    if (!outcome.plan) {
        return {nullptr, outcome.reason};
    }
    return Kernel().Build(*outcome.plan, nullptr);
}

std::unique_ptr<Solid> BuiltSolidOf(const std::string& recipe, const RecipeParameters& parameters)
{
    BuildResult result = SolidOf(recipe, parameters);
    EXPECT_NE(result.solid, nullptr) << result.reason.code << ": " << result.reason.english;
    return std::move(result.solid);
}

} // namespace familyfiles::testing
