#include "support/BuiltSolid.h"
#include "support/MeasuredRecipes.h"

#include <gtest/gtest.h>

namespace familyfiles {
namespace {

using familyfiles::testing::BuiltSolidOf;
using familyfiles::testing::MeasuredRecipe;

class SolidMeasures : public ::testing::TestWithParam<MeasuredRecipe>
{
};

TEST_P(SolidMeasures, AreThoseWorkedOutByHand)
{
    const MeasuredRecipe& row = GetParam();
    const auto solid = BuiltSolidOf(row.recipe);
    ASSERT_NE(solid, nullptr);

    EXPECT_NEAR(solid->Volume(), row.volume, row.volume * row.precision);
    EXPECT_NEAR(solid->Area(), row.area, row.area * row.precision);
    for (std::size_t i = 0; i < row.box.size(); ++i) {
        EXPECT_NEAR(solid->Box()[i], row.box[i], 1e-3) << "side " << i;
    }
    EXPECT_TRUE(solid->IsValid());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SolidMeasures, ::testing::ValuesIn(familyfiles::testing::MeasuredRecipes()), testsupport::RowName());

} // namespace
} // namespace familyfiles
