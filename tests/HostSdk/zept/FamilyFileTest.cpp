#include "support/FakeFamilyParameter.h"
#include "support/RecordingHost.h"
#include "zept/FamilyType.h"
#include "zept/IFamilyFile.h"
#include "zept/IFamilyParameterDefinition.h"
#include "zept/IFamilyParameterDefinitions.h"
#include "zept/IGeometry.h"

#include <gtest/gtest.h>
#include <stdexcept>

using testsupport::FakeFamilyParameter;
using testsupport::RecordingHost;
using zept::IFamilyFile;
using zept::UniIdentity;

namespace {

using Parameters = std::vector<zept::OwnerPtr<zept::IFamilyParameter>>;

const UniIdentity Width(L"0f8fad5b-d9cb-469f-a165-70867728950e");

Parameters ParametersOf(const FakeFamilyParameter& parameter)
{
    Parameters parameters;
    parameters.push_back(parameter.Clone());
    return parameters;
}

} // namespace

TEST(AFamilyFile, IsOpenedByTheHostsFactory)
{
    RecordingHost host;
    EXPECT_TRUE(IFamilyFile::Create(L"C:\\族\\风管.family"));
    EXPECT_EQ(host.familyFiles.paths, std::vector<std::wstring>{L"C:\\族\\风管.family"});
}

TEST(AFamilyFile, IsNullWhenTheHostCannotOpenIt)
{
    RecordingHost host;
    host.familyFiles.opens = false;
    EXPECT_FALSE(IFamilyFile::Create(L"a.family"));
}

TEST(AFamilyFile, IsNullWithoutAHost)
{
    EXPECT_FALSE(IFamilyFile::Create(L"a.family"));
}

TEST(AFamilyFile, IsNullWhenTheHostHasNoFamilyFiles)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::familyFiles);
    EXPECT_FALSE(IFamilyFile::Create(L"a.family"));
    EXPECT_TRUE(host.familyFiles.paths.empty());
}

TEST(AFamilyFile, PassesTheFactorysExceptionOn)
{
    RecordingHost host;
    host.familyFiles.beforeOpening = [] { throw std::runtime_error("broken"); };
    EXPECT_THROW(IFamilyFile::Create(L"a.family"), std::runtime_error);
}

TEST(AFamilyFile, ShowsItsTypesAndDefinitions)
{
    RecordingHost host;
    zept::FamilyType type;
    type.Name = L"DN100";
    type.Parameters = ParametersOf(FakeFamilyParameter(Width));
    host.familyFiles.model.types = {&type, nullptr};
    host.familyFiles.model.definitions.definitions.emplace(Width, 5);

    const auto file = IFamilyFile::Create(L"a.family");
    const zept::FamilyTypeInfo info = file->GetTypeInfo();
    EXPECT_EQ(info.Types, (std::vector<const zept::FamilyType*>{&type, nullptr}));
    ASSERT_NE(info.Definitions, nullptr);
    ASSERT_NE(info.Definitions->FindDefinition(Width), nullptr);
    EXPECT_EQ(info.Definitions->FindDefinition(Width)->GetStorageType(), 5);
    EXPECT_EQ(info.Definitions->FindDefinition(UniIdentity(L"other")), nullptr);
}

TEST(AFamilyFile, RegeneratesFromTheGivenValues)
{
    RecordingHost host;
    host.familyFiles.model.regenerates = [](const Parameters& given) { return given.at(0)->GetDouble() > 0; };
    FakeFamilyParameter width(Width);
    const auto file = IFamilyFile::Create(L"a.family");
    EXPECT_FALSE(file->RegenerateGeometry(ParametersOf(width)));
    width.number = 400;
    EXPECT_TRUE(file->RegenerateGeometry(ParametersOf(width)));
    EXPECT_EQ(host.familyFiles.model.regenerations.size(), 2U);
}

TEST(AFamilyFile, ComputesDrivenParametersEvenWhenItFails)
{
    RecordingHost host;
    host.familyFiles.model.computesDriven = [](const Parameters&, Parameters& outputs) {
        outputs.emplace_back();
        return false;
    };
    Parameters outputs;
    EXPECT_FALSE(IFamilyFile::Create(L"a.family")->ComputeDrivenParameters({}, outputs));
    EXPECT_EQ(outputs.size(), 1U);
}

TEST(AFamilyParameter, IsClonedWithItsValuesAndThenOnItsOwn)
{
    FakeFamilyParameter parameter(Width);
    parameter.SetText(L"文本");
    parameter.SetBool(true);
    parameter.SetDouble(2.5);
    parameter.SetInt(-3);
    const auto clone = parameter.Clone();
    parameter.SetText(L"changed");
    EXPECT_EQ(clone->GetIdentity(), Width);
    EXPECT_EQ(clone->GetText(), L"文本");
    EXPECT_TRUE(clone->GetBool());
    EXPECT_EQ(clone->GetDouble(), 2.5);
    EXPECT_EQ(clone->GetInt(), -3);
}
