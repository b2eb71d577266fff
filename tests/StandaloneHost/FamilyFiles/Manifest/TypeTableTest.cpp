#include "FamilyFiles/Manifest/TypeTable.h"

#include "FamilyFiles/Manifest/ManifestReader.h"
#include "support/SampleManifest.h"

#include <gmock/gmock.h>
#include <limits>

namespace familyfiles {
namespace {

using ::testing::ElementsAre;

FamilyManifest Sample()
{
    Reason reason;
    return ReadManifest(SampleManifest().dump(), reason).value();
}

TEST(TypeTable, GivesTheTypesValuesThenDefaultsThenNothing)
{
    EXPECT_THAT(GivenValues(Sample(), 0),
        ElementsAre(Value(50.0), Value(0.0), Value(8), Value(std::string("GG25")), Value(true), Value(std::string())));
    EXPECT_THAT(GivenValues(Sample(), 1), ElementsAre(Value(80.0), Value(0.29), Value(12), Value(std::string("铸钢")),
                                              Value(false), Value(std::string())));
}

TEST(TypeTable, ComputesDrivenValues)
{
    const FamilyManifest manifest = Sample();
    Reason reason;
    const std::optional<FormulaSet> formulas = MakeFormulas(manifest, reason);
    ASSERT_TRUE(formulas);
    EXPECT_THAT(*ComputedValues(manifest, *formulas, 0, reason),
        ElementsAre(
            Value(50.0), Value(0.2), Value(8), Value(std::string("GG25")), Value(true), Value(std::string("有"))));
}

/// Whether a number may be given, written down once more without the code under test.
bool Oracle(double number, double least, double most)
{
    const double slack = 5e-7;
    return number >= least - slack && number <= most + slack;
}

TEST(TypeTable, HoldsNumbersToTheirBounds)
{
    ParameterDefinition parameter;
    parameter.name = "A";
    parameter.minimum = 15;
    parameter.maximum = 300;
    Reason reason;
    for (const double number :
        {15.0, 300.0, 100.0, 14.9999996, 14.999999, 300.0000004, 300.000001, -15.0, 0.0, 1e300, -1e300}) {
        EXPECT_EQ(IsPossible(parameter, number, reason), Oracle(number, 15, 300)) << number;
    }
    parameter.minimum.reset();
    EXPECT_TRUE(IsPossible(parameter, -1e300, reason));
    parameter.maximum.reset();
    EXPECT_TRUE(IsPossible(parameter, 1e300, reason));
    EXPECT_FALSE(IsPossible(parameter, std::numeric_limits<double>::infinity(), reason));
    EXPECT_FALSE(IsPossible(parameter, std::numeric_limits<double>::quiet_NaN(), reason));
}

TEST(TypeTable, SaysWhichBoundIsMissed)
{
    ParameterDefinition parameter;
    parameter.name = "A";
    parameter.unit = "m";
    parameter.minimum = 1.5;
    Reason reason;
    EXPECT_FALSE(IsPossible(parameter, 1.0, reason));
    EXPECT_EQ(reason.english, "\"A\" cannot be 1 m; possible: ≥ 1.5 m.");
    parameter.minimum.reset();
    parameter.maximum = 0.5;
    EXPECT_FALSE(IsPossible(parameter, 1.0, reason));
    EXPECT_EQ(reason.english, "\"A\" cannot be 1 m; possible: ≤ 0.5 m.");
    parameter.maximum.reset();
    for (int i = 0; i < 20; ++i) {
        parameter.allowed.emplace_back(static_cast<double>(i * 10));
    }
    EXPECT_FALSE(IsPossible(parameter, 1.0, reason));
    EXPECT_EQ(reason.possible, "0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, …");
}

TEST(TypeTable, ComparesIntegersFlagsAndTextsExactly)
{
    Reason reason;
    ParameterDefinition integer;
    integer.storageType = StorageType::Integer;
    integer.allowed = {4, 8};
    EXPECT_TRUE(IsPossible(integer, 8, reason));
    EXPECT_FALSE(IsPossible(integer, 7, reason));
    ParameterDefinition flag;
    flag.storageType = StorageType::YesNo;
    flag.allowed = {true};
    EXPECT_TRUE(IsPossible(flag, true, reason));
    EXPECT_FALSE(IsPossible(flag, false, reason));
    ParameterDefinition text;
    text.storageType = StorageType::Text;
    text.allowed = {std::string("A")};
    EXPECT_TRUE(IsPossible(text, std::string("A"), reason));
    EXPECT_FALSE(IsPossible(text, std::string("a"), reason));
    EXPECT_FALSE(IsPossible(text, std::string("A "), reason));
}

} // namespace
} // namespace familyfiles
