#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"

using tarnnuq::ISpecification;
using testsupport::RecordingParameter;

namespace {

using Texts = std::vector<std::wstring>;

class UpdateDrivenParametersTest : public testsupport::FamilyFileFixture
{
protected:
    /// @return the operation's result, after it was seen to set the flag
    bool Update(const std::shared_ptr<ISpecification>& specification)
    {
        changed = true; // what it was before must not matter
        return Open()->UpdateDrivenParameters(specification, changed);
    }

    bool changed = false;
};

} // namespace

TEST_F(UpdateDrivenParametersTest, WithoutASpecificationIsASuccessThatAsksNothing)
{
    family.AddOutput("w", 5);
    EXPECT_TRUE(Update(nullptr));
    EXPECT_FALSE(changed);
    EXPECT_TRUE(family.calls.calls.empty());
}

TEST_F(UpdateDrivenParametersTest, OfAFamilyWithoutTypesIsAFailure)
{
    family.types.clear();
    EXPECT_FALSE(Update(Specification({})));
    EXPECT_FALSE(changed);
    EXPECT_EQ(family.calls.calls, Calls{"GetTypeInfo"});
}

TEST_F(UpdateDrivenParametersTest, OfAFamilyWhoseFirstTypeIsNullIsAFailure)
{
    family.types = {nullptr, &family.type};
    EXPECT_FALSE(Update(Specification({})));
    EXPECT_FALSE(changed);
    EXPECT_EQ(family.calls.calls, Calls{"GetTypeInfo"});
}

TEST_F(UpdateDrivenParametersTest, NeedsNoGeometry)
{
    family.hasGeometry = false;
    family.AddOutput("w", 5).number = 2.5;
    const auto specification = Specification({{L"Width", L"w", L""}});
    EXPECT_TRUE(Update(specification));
    EXPECT_TRUE(changed);
    EXPECT_EQ(ValuesOf(*specification), Texts{L"2.5"});
}

TEST_F(UpdateDrivenParametersTest, AsksInAFixedOrder)
{
    family.Add("d", 5);
    family.Add("n", 4);
    family.AddOutput("r", 5).number = 25;
    family.AddOutput("q", 4).integer = -7;
    const auto specification =
        Specification({{L"1", L"n", L"3"}, {L"2", L"d", L"50"}, {L"3", L"q", L""}, {L"4", L"r", L""}});
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(family.calls.calls,
        (Calls{"GetTypeInfo", "d.Clone", "n.Clone", "FindDefinition n", "n.SetInt", "FindDefinition d", "d.SetDouble",
            "ComputeDrivenParameters d n", "FindDefinition r", "r.GetDouble", "FindDefinition q", "q.GetInt"}));
    EXPECT_EQ(family.Asked("d").number, 50);
    EXPECT_EQ(family.Asked("n").integer, 3);
    EXPECT_EQ(ValuesOf(*specification), (Texts{L"3", L"50", L"-7", L"25"}));
    EXPECT_TRUE(changed);
}

TEST_F(UpdateDrivenParametersTest, ComputesAlsoWhenNoValueWasSet)
{
    family.Add("d", 5);
    EXPECT_TRUE(Update(Specification({})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetTypeInfo", "d.Clone", "ComputeDrivenParameters d"}));
    EXPECT_FALSE(changed);
}

TEST_F(UpdateDrivenParametersTest, WritesOutputsOfAFailedComputationToo)
{
    family.computes = false;
    family.AddOutput("w", 5).number = 3;
    const auto specification = Specification({{L"Width", L"w", L"old"}});
    EXPECT_FALSE(Update(specification));
    EXPECT_TRUE(changed);
    EXPECT_EQ(ValuesOf(*specification), Texts{L"3"});
}

TEST_F(UpdateDrivenParametersTest, AFailedComputationWithoutOutputsChangesNothing)
{
    family.computes = false;
    EXPECT_FALSE(Update(Specification({{L"Width", L"w", L"old"}})));
    EXPECT_FALSE(changed);
}

TEST_F(UpdateDrivenParametersTest, TheSameTextAgainCountsAsAChange)
{
    family.AddOutput("w", 6).text = L"same";
    const auto specification = Specification({{L"Width", L"w", L"same"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_TRUE(changed);
    EXPECT_EQ(ValuesOf(*specification), Texts{L"same"});
}

TEST_F(UpdateDrivenParametersTest, ChangesNothingButTheValues)
{
    family.AddOutput("w", 5).number = 3;
    const auto specification = Specification({{L"Width", L"w", L"old"}});
    specification->Name = L"DN50";
    const auto entry = specification->Parameters[L"Width"];
    const auto definition = entry->Definition;
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(specification->Name, L"DN50");
    EXPECT_EQ(specification->Parameters[L"Width"], entry);
    EXPECT_EQ(entry->Definition, definition);
    EXPECT_EQ(definition->Id, L"w");
    EXPECT_FALSE(entry->IsValueSpecified);
}

TEST_F(UpdateDrivenParametersTest, OfTwoEntriesWithOneIdTheFirstNameReceivesTheValue)
{
    family.AddOutput("w", 5).number = 3;
    const auto specification = Specification({{L"b", L"w", L"second"}, {L"a", L"w", L"first"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(ValuesOf(*specification), (Texts{L"3", L"second"}));
}

TEST_F(UpdateDrivenParametersTest, OfTwoOutputsWithOneIdTheLaterOneHasTheLastWord)
{
    family.AddOutput("w", 5).number = 3;
    family.AddOutput("w", 5).number = 4;
    const auto specification = Specification({{L"Width", L"w", L""}});
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(ValuesOf(*specification), Texts{L"4"});
}

TEST_F(UpdateDrivenParametersTest, PassesOverEntriesWithoutParameterOrDefinition)
{
    family.AddOutput("", 5).number = 3;
    const auto specification = Specification({{L"c", L"", L"third"}, {L"d", L"", L"fourth"}});
    specification->Parameters[L"a"] = nullptr;
    specification->Parameters[L"b"] = std::make_shared<tarnnuq::IParameter>();
    EXPECT_TRUE(Update(specification));
    EXPECT_TRUE(changed);
    EXPECT_EQ(ValuesOf(*specification), (Texts{L"null", L"", L"3", L"fourth"}));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(UpdateDrivenParametersTest, MatchesIdsExactly)
{
    family.AddOutput("{0A1B2C3D-0000-4000-8000-00000000000F}", 5).number = 3;
    const auto specification = Specification({{L"a", L"{0a1b2c3d-0000-4000-8000-00000000000f}", L"1"},
        {L"b", L"0A1B2C3D-0000-4000-8000-00000000000F", L"2"}, {L"c", L"", L"3"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_FALSE(changed);
    EXPECT_EQ(ValuesOf(*specification), (Texts{L"1", L"2", L"3"}));
}

TEST_F(UpdateDrivenParametersTest, NullOutputsAreSkippedWithoutAWarning)
{
    family.outputs.emplace_back();
    family.AddOutput("w", 5).number = 3;
    family.outputs.emplace_back();
    const auto specification = Specification({{L"Width", L"w", L""}});
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(ValuesOf(*specification), Texts{L"3"});
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(UpdateDrivenParametersTest, WithoutDefinitionsWritesNothing)
{
    family.Add("d", 5);
    family.hasDefinitions = false;
    family.AddOutput("w", 5).number = 3;
    const auto specification = Specification({{L"Diameter", L"d", L"50"}, {L"Width", L"w", L"old"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_FALSE(changed);
    EXPECT_EQ(ValuesOf(*specification), (Texts{L"50", L"old"}));
    EXPECT_EQ(family.Asked("d").number, -77);
}

TEST_F(UpdateDrivenParametersTest, AnOutputWithoutDefinitionIsNotWritten)
{
    family.AddOutput("w", 0).number = 3;
    const auto specification = Specification({{L"Width", L"w", L"old"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_FALSE(changed);
    EXPECT_EQ(ValuesOf(*specification), Texts{L"old"});
}

TEST_F(UpdateDrivenParametersTest, AnOutputOfAnotherStorageTypeIsNotWritten)
{
    for (const int storageType : {-6, -1, 1, 2, 7, 8, 2147483647}) {
        family.definitions.storageTypes.clear();
        family.outputs.clear();
        family.AddOutput("w", storageType);
        const auto specification = Specification({{L"Width", L"w", L"old"}});
        EXPECT_TRUE(Update(specification)) << storageType;
        EXPECT_FALSE(changed) << storageType;
        EXPECT_EQ(ValuesOf(*specification), Texts{L"old"}) << storageType;
    }
}

TEST_F(UpdateDrivenParametersTest, AnOutputThatNoEntryHasIsNotLookedUp)
{
    family.AddOutput("w", 5);
    EXPECT_TRUE(Update(Specification({{L"Height", L"h", L"old"}})));
    EXPECT_FALSE(changed);
    EXPECT_EQ(family.calls.calls, (Calls{"GetTypeInfo", "ComputeDrivenParameters"}));
}

TEST_F(UpdateDrivenParametersTest, AnEntryMayBeInputAndOutput)
{
    family.Add("w", 5);
    family.AddOutput("w", 5).number = 120.5;
    const auto specification = Specification({{L"Width", L"w", L"100"}});
    EXPECT_TRUE(Update(specification));
    EXPECT_EQ(family.Asked("w").number, 100);
    EXPECT_EQ(ValuesOf(*specification), Texts{L"120.5"});
}

TEST_F(UpdateDrivenParametersTest, LeavesTheFamilysOwnParametersAlone)
{
    const RecordingParameter& own = family.Add("w", 5);
    EXPECT_TRUE(Update(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(own.number, -77);
}

TEST_F(UpdateDrivenParametersTest, ANullParameterIsWarnedAboutAndSkipped)
{
    family.type.Parameters.emplace_back();
    family.Add("w", 5);
    EXPECT_TRUE(Update(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls.back(), "ComputeDrivenParameters w");
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "FamilyFileSvcs/FamilyFileService.cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::FamilyFileService::UpdateDrivenParameters");
    EXPECT_EQ(warning.message, L"param 为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-25");
}

TEST_F(UpdateDrivenParametersTest, AndTheGeometryCanBeAskedInAnyOrder)
{
    family.Add("w", 5);
    family.AddOutput("w", 5).number = 3;
    const auto service = Open();
    const auto specification = Specification({{L"Width", L"w", L"100"}});
    EXPECT_TRUE(service->UpdateDrivenParameters(specification, changed));
    EXPECT_TRUE(service->TryUpdateGeometry(specification));
    EXPECT_EQ(family.Asked("w").number, 3);
    EXPECT_TRUE(service->UpdateDrivenParameters(specification, changed));
}
