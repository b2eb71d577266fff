#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"

using testsupport::RecordingParameter;

namespace {

using TryUpdateGeometryTest = testsupport::FamilyFileFixture;

} // namespace

TEST_F(TryUpdateGeometryTest, WithoutASpecificationIsAFailureThatAsksNothing)
{
    EXPECT_FALSE(Open()->TryUpdateGeometry(nullptr));
    EXPECT_TRUE(family.calls.calls.empty());
}

TEST_F(TryUpdateGeometryTest, WithoutACurrentGeometryIsAFailureThatAsksNothingElse)
{
    family.Add("w", 5);
    family.hasGeometry = false;
    EXPECT_FALSE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls, Calls{"GetCurrentGeometry"});
}

TEST_F(TryUpdateGeometryTest, OfAFamilyWithoutTypesIsAFailure)
{
    family.types.clear();
    EXPECT_FALSE(Open()->TryUpdateGeometry(Specification({})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo"}));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(TryUpdateGeometryTest, OfAFamilyWhoseFirstTypeIsNullIsAFailure)
{
    family.types = {nullptr, &family.type};
    EXPECT_FALSE(Open()->TryUpdateGeometry(Specification({})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo"}));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(TryUpdateGeometryTest, WorksOnTheFirstType)
{
    zept::FamilyType second;
    second.Parameters.emplace_back(new RecordingParameter(family.calls, "second"));
    family.Add("w", 5);
    family.types = {&family.type, &second, nullptr};
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo", "w.Clone", "FindDefinition w",
                                      "w.SetDouble", "RegenerateGeometry w"}));
}

TEST_F(TryUpdateGeometryTest, AsksInAFixedOrder)
{
    family.Add("a", 5);
    family.Add("b", 6);
    family.Add("c", 4);
    family.Add("d", 3);
    family.Add("unset", 5);
    const auto specification = Specification({{L"1", L"d", L"true"}, {L"2", L"c", L"7"}, {L"3", L"unknown", L"8"},
        {L"4", L"b", L"text"}, {L"5", L"a", L"2.5"}});
    EXPECT_TRUE(Open()->TryUpdateGeometry(specification));
    EXPECT_EQ(family.calls.calls,
        (Calls{"GetCurrentGeometry", "GetTypeInfo", "a.Clone", "b.Clone", "c.Clone", "d.Clone", "unset.Clone",
            "FindDefinition d", "d.SetBool", "FindDefinition c", "c.SetInt", "FindDefinition b", "b.SetText",
            "FindDefinition a", "a.SetDouble", "RegenerateGeometry a b c d unset"}));
    EXPECT_EQ(family.Asked("a").number, 2.5);
    EXPECT_EQ(family.Asked("b").text, L"text");
    EXPECT_EQ(family.Asked("c").integer, 7);
    EXPECT_TRUE(family.Asked("d").yesNo);
    EXPECT_EQ(family.Asked("unset").number, -77);
}

TEST_F(TryUpdateGeometryTest, SaysWhetherAGeometryCameBack)
{
    family.Add("w", 5);
    const auto service = Open();
    const auto specification = Specification({{L"Width", L"w", L"100"}});
    EXPECT_TRUE(service->TryUpdateGeometry(specification));
    family.regenerates = false;
    EXPECT_FALSE(service->TryUpdateGeometry(specification));
    EXPECT_EQ(family.geometries, 0);
}

TEST_F(TryUpdateGeometryTest, ChangesNeitherTheFamilyNorTheSpecification)
{
    const RecordingParameter& own = family.Add("w", 5);
    const auto specification = Specification({{L"Width", L"w", L" 100 "}});
    EXPECT_TRUE(Open()->TryUpdateGeometry(specification));
    EXPECT_EQ(own.number, -77);
    EXPECT_EQ(ValuesOf(*specification), (std::vector<std::wstring>{L" 100 "}));
    EXPECT_EQ(family.Asked("w").number, 100);
}

TEST_F(TryUpdateGeometryTest, AsksAnewEachTime)
{
    family.Add("w", 5);
    const auto service = Open();
    EXPECT_TRUE(service->TryUpdateGeometry(Specification({{L"Width", L"w", L"1"}})));
    EXPECT_TRUE(service->TryUpdateGeometry(Specification({{L"Width", L"w", L"2"}})));
    EXPECT_EQ(family.calls.calls.size(), 12U);
    EXPECT_EQ(family.Asked("w").number, 2);
}

TEST_F(TryUpdateGeometryTest, WithNothingThatMatchesStandsWithoutARegeneration)
{
    family.Add("w", 5);
    family.regenerates = false;
    const auto service = Open();
    EXPECT_TRUE(service->TryUpdateGeometry(Specification({})));
    EXPECT_TRUE(service->TryUpdateGeometry(Specification({{L"w", L"h", L"100"}, {L"v", L"", L"100"}})));
    EXPECT_EQ(family.calls.calls,
        (Calls{"GetCurrentGeometry", "GetTypeInfo", "w.Clone", "GetCurrentGeometry", "GetTypeInfo", "w.Clone"}));
}

TEST_F(TryUpdateGeometryTest, OfAFamilyWithoutParametersStands)
{
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"w", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo"}));
}

TEST_F(TryUpdateGeometryTest, MatchesIdsExactly)
{
    const std::string guid = "{0A1B2C3D-0000-4000-8000-00000000000F}";
    family.Add(guid, 5);
    const auto service = Open();
    for (const wchar_t* id : {L"{0a1b2c3d-0000-4000-8000-00000000000f}", L"0A1B2C3D-0000-4000-8000-00000000000F",
             L"{0A1B2C3D-0000-4000-8000-00000000000F} ", L"{0A1B2C3D-0000-4000-8000-00000000000", L""}) {
        EXPECT_TRUE(service->TryUpdateGeometry(Specification({{L"Width", id, L"100"}})));
        EXPECT_TRUE(family.asked.empty()) << std::string(id, id + wcslen(id));
    }
    service->TryUpdateGeometry(Specification({{L"Width", std::wstring(guid.begin(), guid.end()), L"100"}}));
    EXPECT_EQ(family.Asked(guid).number, 100);
}

TEST_F(TryUpdateGeometryTest, AnEmptyIdMatchesAnEmptyIdentity)
{
    family.Add("", 5);
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"", L"100"}})));
    EXPECT_EQ(family.Asked("").number, 100);
}

TEST_F(TryUpdateGeometryTest, SetsTheFirstOfTwoParametersWithOneId)
{
    family.Add("w", 5);
    family.Add("w", 5);
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    ASSERT_EQ(family.asked.size(), 2U);
    EXPECT_EQ(family.asked[0].number, 100);
    EXPECT_EQ(family.asked[1].number, -77);
}

TEST_F(TryUpdateGeometryTest, OfTwoEntriesWithOneIdTheLaterNameHasTheLastWord)
{
    family.Add("w", 5);
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"b", L"w", L"2"}, {L"a", L"w", L"1"}})));
    EXPECT_EQ(family.Asked("w").number, 2);
}

TEST_F(TryUpdateGeometryTest, SetsEntriesWhetherOrNotTheirValueWasGiven)
{
    family.Add("w", 5);
    const auto specification = Specification({{L"Width", L"w", L""}});
    specification->Parameters[L"Width"]->SetIsValueSpecified(false);
    EXPECT_TRUE(Open()->TryUpdateGeometry(specification));
    EXPECT_EQ(family.Asked("w").number, 0);
}

TEST_F(TryUpdateGeometryTest, PassesOverEntriesWithoutParameterOrDefinition)
{
    family.Add("", 5);
    const auto specification = Specification({});
    specification->Parameters[L"a"] = nullptr;
    specification->Parameters[L"b"] = std::make_shared<tarnnuq::IParameter>();
    specification->Parameters[L"b"]->Value = L"100";
    EXPECT_TRUE(Open()->TryUpdateGeometry(specification));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo", ".Clone"}));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

TEST_F(TryUpdateGeometryTest, WithoutDefinitionsSetsNothing)
{
    family.Add("w", 5);
    family.hasDefinitions = false;
    family.regenerates = false;
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo", "w.Clone"}));
}

TEST_F(TryUpdateGeometryTest, AParameterWithoutDefinitionIsNotSet)
{
    family.Add("w", 0);
    family.regenerates = false;
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls, (Calls{"GetCurrentGeometry", "GetTypeInfo", "w.Clone", "FindDefinition w"}));
}

TEST_F(TryUpdateGeometryTest, AParameterOfAnotherStorageTypeIsNotSet)
{
    family.regenerates = false;
    const auto service = Open();
    for (const int storageType : {-5, -1, 1, 2, 7, 8, 35, 2147483647}) {
        family.definitions.storageTypes.clear();
        family.type.Parameters.clear();
        family.Add("w", storageType);
        EXPECT_TRUE(service->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}}))) << storageType;
        EXPECT_EQ(family.calls.calls.back(), "FindDefinition w") << storageType;
    }
}

TEST_F(TryUpdateGeometryTest, AValueThatIsAlreadyThereCountsAsSet)
{
    family.Add("w", 5).number = 100;
    family.regenerates = false;
    EXPECT_FALSE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
}

TEST_F(TryUpdateGeometryTest, ANullParameterIsWarnedAboutAndSkipped)
{
    family.type.Parameters.emplace_back();
    family.Add("w", 5);
    family.type.Parameters.emplace_back();
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"Width", L"w", L"100"}})));
    EXPECT_EQ(family.calls.calls.back(), "RegenerateGeometry w");
    ASSERT_EQ(host.debugMessages.Warnings().size(), 2U);
    for (const testsupport::DebugWarning& warning : host.debugMessages.Warnings()) {
        EXPECT_EQ(warning.file, "FamilyFileSvcs/FamilyFileService.cpp");
        EXPECT_GT(warning.line, 0);
        EXPECT_EQ(warning.function, "tarnnuq::FamilyFileService::TryUpdateGeometry");
        EXPECT_EQ(warning.message, L"param 为空");
        EXPECT_EQ(warning.author, L"tarnnuq");
        EXPECT_EQ(warning.date, L"2022-01-25");
    }
}

TEST_F(TryUpdateGeometryTest, AParameterThatGivesNoCopyIsSkipped)
{
    family.Add("v", 5).clones = false;
    family.Add("w", 5);
    EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"1", L"v", L"1"}, {L"2", L"w", L"2"}})));
    EXPECT_EQ(family.calls.calls.back(), "RegenerateGeometry w");
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}
