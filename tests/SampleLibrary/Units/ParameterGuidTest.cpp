#include "Reading/ParameterReader.h"
#include "Reading/PropertyReader.h"

#include <gtest/gtest.h>

namespace {

// The identifiers stand in family files and projects: they must never change.
TEST(ParameterGuid, OfACodeStaysForEver)
{
    EXPECT_EQ(samplelibrary::ParameterGuid("DN"), "63aff0bf-7181-5483-95d5-27af0683f2bc");
    EXPECT_EQ(samplelibrary::ParameterGuid("PumpTypeCommon.FlowRateRange"), "f8bb7db3-7ae7-53c9-8bd0-84521c2f6ca8");
}

TEST(SpacedName, SeparatesTheWordsOfAProperty)
{
    EXPECT_EQ(samplelibrary::SpacedName("NominalAirFlowRate"), "Nominal air flow rate");
    EXPECT_EQ(samplelibrary::SpacedName("Weight"), "Weight");
    EXPECT_EQ(samplelibrary::SpacedName("TotalUACurves"), "Total UA curves");
    EXPECT_EQ(samplelibrary::SpacedName("SetPointPH"), "Set point PH");
}

} // namespace
