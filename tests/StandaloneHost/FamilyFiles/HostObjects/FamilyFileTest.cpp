#include "FamilyFiles/FamilyFile.h"

#include "FamilyFiles/BuiltGeometry.h"
#include "FamilyFiles/FamilyFileFactory.h"
#include "FamilyFiles/HostObjects/FamilyParameter.h"
#include "FamilyFiles/Manifest/ManifestReader.h"
#include "StandaloneHost/support/TestFolder.h"
#include "support/FakeFamilyParameter.h"
#include "support/RawArchive.h"
#include "support/RecordingKernel.h"
#include "support/SampleManifest.h"
#include "zept/IFamilyParameterDefinition.h"

#include <QFile>
#include <functional>
#include <gmock/gmock.h>
#include <limits>

namespace familyfiles {
namespace {

using Json = nlohmann::ordered_json;
using zept::IFamilyParameter;
using zept::OwnerPtr;

zept::UniIdentity IdentityOf(unsigned number)
{
    const std::string guid = SampleGuid(number);
    return zept::UniIdentity(std::wstring(guid.begin(), guid.end()));
}

/// The order of the sample's parameters.
enum SampleParameter : std::size_t
{
    Dn,
    Length,
    Bolts,
    Body,
    Insulated,
    Note
};

std::unique_ptr<FamilyFile> Opened(const Json& json)
{
    Reason reason;
    std::optional<FamilyManifest> manifest = ReadManifest(json.dump(), reason);
    EXPECT_TRUE(manifest) << reason.english;
    std::unique_ptr<FamilyModel> model = FamilyModel::Make(std::move(*manifest), reason);
    EXPECT_NE(model, nullptr) << reason.english;
    return std::make_unique<FamilyFile>(std::move(model));
}

/// Copies of the first type's parameters, as the library makes them.
FamilyFile::Parameters ClonesOf(FamilyFile& file)
{
    FamilyFile::Parameters clones;
    for (const OwnerPtr<IFamilyParameter>& parameter : file.GetTypeInfo().Types.front()->Parameters) {
        clones.push_back(parameter->Clone());
    }
    return clones;
}

class FamilyFileTest : public ::testing::Test
{
protected:
    RecordingKernel kernel;
    std::unique_ptr<FamilyFile> file = Opened(SampleManifest());
};

TEST_F(FamilyFileTest, ListsTypesAndParametersInTheFilesOrder)
{
    const zept::FamilyTypeInfo info = file->GetTypeInfo();
    ASSERT_EQ(info.Types.size(), 2U);
    EXPECT_EQ(info.Types[0]->Name, L"DN50");
    EXPECT_EQ(info.Types[1]->Name, L"DN80");
    ASSERT_EQ(info.Types[0]->Parameters.size(), 6U);
    for (unsigned i = 0; i < 6; ++i) {
        EXPECT_EQ(info.Types[0]->Parameters[i]->GetIdentity(), IdentityOf(i + 1));
    }
    EXPECT_EQ(info.Types[1]->Parameters[Dn]->GetDouble(), 80);
    EXPECT_EQ(info.Types[1]->Parameters[Bolts]->GetInt(), 12);
    EXPECT_EQ(info.Types[1]->Parameters[Body]->GetText(), L"铸钢");
    EXPECT_EQ(info.Types[1]->Parameters[Insulated]->GetBool(), false);
    EXPECT_EQ(file->GetTypeInfo().Types, info.Types) << "the same objects each time";
}

TEST_F(FamilyFileTest, ComputesDrivenParametersOfEveryType)
{
    const zept::FamilyTypeInfo info = file->GetTypeInfo();
    EXPECT_EQ(info.Types[0]->Parameters[Length]->GetDouble(), 0.2) << "DN*3+50 mm, in m";
    EXPECT_EQ(info.Types[0]->Parameters[Bolts]->GetInt(), 8) << "the default";
    EXPECT_EQ(info.Types[0]->Parameters[Note]->GetText(), L"有");
    EXPECT_EQ(info.Types[1]->Parameters[Length]->GetDouble(), 0.29);
    EXPECT_EQ(info.Types[1]->Parameters[Note]->GetText(), L"无");
}

TEST_F(FamilyFileTest, FindsDefinitionsByIdentity)
{
    const zept::FamilyTypeInfo info = file->GetTypeInfo();
    ASSERT_NE(info.Definitions, nullptr);
    const int expected[] = {5, 5, 4, 6, 3, 6};
    for (unsigned i = 0; i < 6; ++i) {
        const zept::IFamilyParameterDefinition* const definition = info.Definitions->FindDefinition(IdentityOf(i + 1));
        ASSERT_NE(definition, nullptr);
        EXPECT_EQ(definition->GetStorageType(), expected[i]);
    }
    EXPECT_EQ(info.Definitions->FindDefinition(IdentityOf(99)), nullptr);
    EXPECT_EQ(info.Definitions->FindDefinition(zept::UniIdentity()), nullptr);
}

TEST_F(FamilyFileTest, ClonesAreIndependent)
{
    const auto& original = file->GetTypeInfo().Types.front()->Parameters[Dn];
    const OwnerPtr<IFamilyParameter> clone = original->Clone();
    clone->SetDouble(80);
    EXPECT_EQ(original->GetDouble(), 50);
    EXPECT_EQ(clone->GetDouble(), 80);
    EXPECT_EQ(clone->GetIdentity(), original->GetIdentity());
    EXPECT_EQ(clone->GetIdentity().GetGuidString(), original->GetIdentity().GetGuidString());
}

TEST_F(FamilyFileTest, ComputesDrivenParametersFromInputs)
{
    FamilyFile::Parameters inputs = ClonesOf(*file);
    inputs[Dn]->SetDouble(80);
    inputs[Insulated]->SetBool(false);
    inputs[Length]->SetDouble(7777);
    FamilyFile::Parameters outputs;
    ASSERT_TRUE(file->ComputeDrivenParameters(inputs, outputs)) << file->LastReason().english;
    ASSERT_EQ(outputs.size(), 2U);
    EXPECT_EQ(outputs[0]->GetIdentity(), IdentityOf(2));
    EXPECT_EQ(outputs[0]->GetDouble(), 0.29);
    EXPECT_EQ(outputs[1]->GetIdentity(), IdentityOf(6));
    EXPECT_EQ(outputs[1]->GetText(), L"无");
    EXPECT_EQ(inputs[Length]->GetDouble(), 7777) << "inputs are left alone";
    EXPECT_FALSE(file->LastReason());
    EXPECT_EQ(file->GetTypeInfo().Types.front()->Parameters[Dn]->GetDouble(), 50) << "so is the file";
    EXPECT_TRUE(kernel.plans.empty());
}

TEST_F(FamilyFileTest, TakesParametersOfAnotherMaker)
{
    FamilyFile::Parameters inputs;
    auto* const dn = new testsupport::FakeFamilyParameter(IdentityOf(1));
    dn->number = 100.5;
    auto* const insulated = new testsupport::FakeFamilyParameter(IdentityOf(5));
    auto* const bolts = new testsupport::FakeFamilyParameter(IdentityOf(3));
    bolts->integer = 16;
    auto* const body = new testsupport::FakeFamilyParameter(IdentityOf(4));
    body->text = L"铸钢";
    auto* const unknown = new testsupport::FakeFamilyParameter(IdentityOf(77));
    for (testsupport::FakeFamilyParameter* const parameter : {dn, insulated, bolts, body, unknown}) {
        inputs.emplace_back(parameter);
    }
    inputs.emplace_back();
    FamilyFile::Parameters outputs;
    ASSERT_TRUE(file->ComputeDrivenParameters(inputs, outputs)) << file->LastReason().english;
    EXPECT_EQ(outputs[0]->GetDouble(), 0.3515);
    EXPECT_EQ(outputs[1]->GetText(), L"无");
}

TEST_F(FamilyFileTest, ParametersThatAreNotGivenHaveTheFirstTypesValues)
{
    FamilyFile::Parameters outputs;
    ASSERT_TRUE(file->ComputeDrivenParameters({}, outputs));
    EXPECT_EQ(outputs[0]->GetDouble(), 0.2);
}

struct RefusalRow
{
    const char* name;
    std::function<void(FamilyFile::Parameters&)> change;
    const char* code;
    const char* subject;
    const char* english;
    const char* chinese;
    const char* wanted;
    const char* possible;
};

void PrintTo(const RefusalRow& row, std::ostream* out)
{
    *out << row.name;
}

class FamilyFileRefusal : public FamilyFileTest, public ::testing::WithParamInterface<RefusalRow>
{
};

TEST_P(FamilyFileRefusal, ChangesNothingAndSaysWhy)
{
    FamilyFile::Parameters inputs = ClonesOf(*file);
    GetParam().change(inputs);
    FamilyFile::Parameters outputs;
    outputs.push_back(inputs[Dn]->Clone());
    EXPECT_FALSE(file->ComputeDrivenParameters(inputs, outputs));
    EXPECT_EQ(outputs.size(), 1U);
    const Reason reason = file->LastReason();
    EXPECT_EQ(reason.code, GetParam().code);
    EXPECT_EQ(reason.subject, GetParam().subject);
    EXPECT_EQ(reason.english, GetParam().english);
    EXPECT_EQ(reason.chinese, GetParam().chinese);
    EXPECT_EQ(reason.wanted, GetParam().wanted);
    EXPECT_EQ(reason.possible, GetParam().possible);
    EXPECT_FALSE(file->RegenerateGeometry(inputs));
    EXPECT_EQ(file->LastReason().english, reason.english);
    EXPECT_TRUE(kernel.plans.empty());
}

INSTANTIATE_TEST_SUITE_P(Values, FamilyFileRefusal,
    ::testing::Values(RefusalRow{"BelowMinimum", [](auto& p) { p[Dn]->SetDouble(14); }, "value.out-of-range", "DN",
                          "\"DN\" cannot be 14 mm; possible: 15 mm … 300 mm.",
                          "“DN”不能为 14 mm；可选：15 mm … 300 mm。", "14 mm", "15 mm … 300 mm"},
        RefusalRow{"AboveMaximum", [](auto& p) { p[Bolts]->SetInt(17); }, "value.out-of-range", "Bolts",
            "\"Bolts\" cannot be 17; possible: 4 … 16.", "“Bolts”不能为 17；可选：4 … 16。", "17", "4 … 16"},
        RefusalRow{"NotAllowed", [](auto& p) { p[Dn]->SetDouble(65); }, "value.not-allowed", "DN",
            "\"DN\" cannot be 65 mm; possible: 50, 80, 100.5 mm.", "“DN”不能为 65 mm；可选：50, 80, 100.5 mm。",
            "65 mm", "50, 80, 100.5 mm"},
        RefusalRow{"TextNotAllowed", [](auto& p) { p[Body]->SetText(L"木"); }, "value.not-allowed", "Body",
            "\"Body\" cannot be 木; possible: GG25, 铸钢.", "“Body”不能为 木；可选：GG25, 铸钢。", "木", "GG25, 铸钢"},
        RefusalRow{"NotANumber", [](auto& p) { p[Dn]->SetDouble(std::numeric_limits<double>::quiet_NaN()); },
            "value.not-finite", "DN", "The value of \"DN\" is not a finite number.", "“DN”的值不是有限数。", "", ""},
        RefusalRow{"Infinite", [](auto& p) { p[Dn]->SetDouble(-std::numeric_limits<double>::infinity()); },
            "value.not-finite", "DN", "The value of \"DN\" is not a finite number.", "“DN”的值不是有限数。", "", ""},
        RefusalRow{"TextForNumber", [](auto& p) { p[Dn]->SetText(L"50"); }, "value.wrong-type", "DN",
            "\"DN\" has to be a number.", "“DN”必须是数值。", "", ""},
        RefusalRow{"IntegerForNumber", [](auto& p) { p[Dn]->SetInt(50); }, "value.wrong-type", "DN",
            "\"DN\" has to be a number.", "“DN”必须是数值。", "", ""},
        RefusalRow{"NumberForInteger", [](auto& p) { p[Bolts]->SetDouble(8); }, "value.wrong-type", "Bolts",
            "\"Bolts\" has to be a whole number of 32 bits.", "“Bolts”必须是32 位整数。", "", ""},
        RefusalRow{"FlagForText", [](auto& p) { p[Body]->SetBool(true); }, "value.wrong-type", "Body",
            "\"Body\" has to be a text.", "“Body”必须是文本。", "", ""},
        RefusalRow{"NumberForFlag", [](auto& p) { p[Insulated]->SetInt(1); }, "value.wrong-type", "保温",
            "\"保温\" has to be a yes/no value.", "“保温”必须是是/否值。", "", ""}),
    [](const auto& row) { return row.param.name; });

TEST_F(FamilyFileTest, CutsAMillionCharactersInTheReason)
{
    FamilyFile::Parameters inputs = ClonesOf(*file);
    inputs[Body]->SetText(std::wstring(1000000, L'x'));
    FamilyFile::Parameters outputs;
    EXPECT_FALSE(file->ComputeDrivenParameters(inputs, outputs));
    EXPECT_EQ(file->LastReason().wanted, std::string(60, 'x') + "…");
}

TEST_F(FamilyFileTest, NamesTheFormulaThatFails)
{
    Json json = SampleManifest();
    json["parameters"][Length]["formula"] = "1000/(DN-80)";
    file = Opened(json);
    FamilyFile::Parameters inputs = ClonesOf(*file);
    inputs[Dn]->SetDouble(80);
    FamilyFile::Parameters outputs;
    EXPECT_FALSE(file->ComputeDrivenParameters(inputs, outputs));
    EXPECT_EQ(file->LastReason().code, "formula.division-by-zero");
    EXPECT_EQ(file->LastReason().subject, "L");
    EXPECT_TRUE(outputs.empty());
    inputs[Dn]->SetDouble(50);
    EXPECT_TRUE(file->ComputeDrivenParameters(inputs, outputs));
    EXPECT_FALSE(file->LastReason());
}

TEST_F(FamilyFileTest, ListsATypeWhoseFormulasFailAsTheFileHasIt)
{
    Json json = SampleManifest();
    json["parameters"][Length]["formula"] = "1000/(DN-80)";
    file = Opened(json);
    const zept::FamilyTypeInfo info = file->GetTypeInfo();
    EXPECT_EQ(info.Types[1]->Parameters[Length]->GetDouble(), 0.29);
}

TEST_F(FamilyFileTest, BuildsTheCurrentGeometryOnceOnFirstUse)
{
    file->GetTypeInfo();
    EXPECT_TRUE(kernel.plans.empty());
    const OwnerPtr<zept::IGeometry> first = file->GetCurrentGeometry();
    const OwnerPtr<zept::IGeometry> second = file->GetCurrentGeometry();
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_EQ(kernel.plans.size(), 1U);
    EXPECT_EQ(kernel.bodies, 1);
    const auto& cylinder = std::get<CylinderShape>(kernel.plans[0].steps[0].shape);
    EXPECT_EQ(cylinder.radius, 25);
    EXPECT_EQ(cylinder.length, 200) << "the recipe sees mm, though L is in m";
    EXPECT_EQ(&dynamic_cast<const BuiltGeometry&>(*first).Body(), &dynamic_cast<const BuiltGeometry&>(*second).Body());
}

TEST_F(FamilyFileTest, NeverBuildsTheSameTwiceInOneCheck)
{
    ASSERT_TRUE(file->GetCurrentGeometry());
    FamilyFile::Parameters inputs = ClonesOf(*file);
    EXPECT_TRUE(file->RegenerateGeometry(inputs));
    EXPECT_EQ(kernel.plans.size(), 1U);
    inputs[Dn]->SetDouble(80);
    EXPECT_TRUE(file->RegenerateGeometry(inputs));
    ASSERT_EQ(kernel.plans.size(), 2U);
    EXPECT_EQ(std::get<CylinderShape>(kernel.plans[1].steps[0].shape).radius, 40);
    EXPECT_TRUE(file->GetCurrentGeometry());
    EXPECT_EQ(kernel.plans.size(), 2U);
}

TEST_F(FamilyFileTest, KeepsThatTheCurrentGeometryFailed)
{
    kernel.refusal = {"geometry.invalid", "body", "No.", "否。"};
    EXPECT_FALSE(file->GetCurrentGeometry());
    EXPECT_EQ(file->LastReason().code, "geometry.invalid");
    EXPECT_FALSE(file->GetCurrentGeometry());
    EXPECT_EQ(file->LastReason().code, "geometry.invalid");
    EXPECT_EQ(kernel.plans.size(), 1U);
    kernel.refusal = {};
    FamilyFile::Parameters inputs = ClonesOf(*file);
    EXPECT_FALSE(file->RegenerateGeometry(inputs)) << "the same values fail again";
    EXPECT_EQ(file->LastReason().code, "geometry.invalid");
    inputs[Dn]->SetDouble(80);
    EXPECT_TRUE(file->RegenerateGeometry(inputs));
    EXPECT_FALSE(file->LastReason());
}

TEST_F(FamilyFileTest, HandsOnWhyARegenerationFails)
{
    ASSERT_TRUE(file->GetCurrentGeometry());
    kernel.refusal = {"geometry.invalid", "body", "No.", "否。"};
    FamilyFile::Parameters inputs = ClonesOf(*file);
    inputs[Dn]->SetDouble(80);
    EXPECT_FALSE(file->RegenerateGeometry(inputs));
    EXPECT_EQ(file->LastReason().english, "No.");
}

TEST_F(FamilyFileTest, GivesGeometryThatOutlivesTheFile)
{
    const OwnerPtr<zept::IGeometry> geometry = file->GetCurrentGeometry();
    FamilyFile::Parameters inputs = ClonesOf(*file);
    file.reset();
    EXPECT_EQ(kernel.bodies, 1);
    EXPECT_EQ(dynamic_cast<const BuiltGeometry&>(*geometry).Body().Volume(), 1);
    EXPECT_EQ(inputs[Dn]->Clone()->GetDouble(), 50);
}

TEST_F(FamilyFileTest, SaysThatAFamilyHasNoGeometry)
{
    Json json = SampleManifest();
    json.erase("geometry");
    file = Opened(json);
    EXPECT_FALSE(file->GetCurrentGeometry());
    EXPECT_EQ(file->LastReason().code, "geometry.none");
    EXPECT_EQ(file->LastReason().english, "The family has no geometry.");
    EXPECT_EQ(file->LastReason().chinese, "该族没有几何模型。");
}

TEST_F(FamilyFileTest, SaysWhatIsWrongWithTheRecipe)
{
    Json json = SampleManifest();
    json["geometry"]["steps"][0]["op"] = "magic";
    file = Opened(json);
    EXPECT_FALSE(file->GetCurrentGeometry());
    EXPECT_EQ(file->LastReason().code, "recipe.unknown-operation");
    EXPECT_TRUE(kernel.plans.empty());
}

TEST_F(FamilyFileTest, RefusesFormulasThatCannotBeWorkedOutOnOpening)
{
    Json json = SampleManifest();
    json["parameters"][Length]["formula"] = "DN + L";
    Reason reason;
    EXPECT_EQ(FamilyModel::Make(*ReadManifest(json.dump(), reason), reason), nullptr);
    EXPECT_EQ(reason.code, "formula.cycle");
    json["parameters"][Length]["formula"] = "DN + 5kW";
    EXPECT_EQ(FamilyModel::Make(*ReadManifest(json.dump(), reason), reason), nullptr);
    EXPECT_EQ(reason.code, "formula.wrong-unit");
    EXPECT_EQ(reason.subject, "L");
}

TEST_F(FamilyFileTest, HandlesTenThousandDrivenParameters)
{
    Json json = SampleManifest();
    json.erase("geometry");
    json["types"].erase(1);
    for (unsigned i = 0; i < 9994; ++i) {
        const std::string before = i == 0 ? "DN" : "p" + std::to_string(i - 1);
        json["parameters"].push_back({{"id", SampleGuid(1000 + i)}, {"name", "p" + std::to_string(i)},
            {"storageType", 5}, {"unit", "mm"}, {"formula", before + "+1mm"}});
    }
    file = Opened(json);
    FamilyFile::Parameters outputs;
    ASSERT_TRUE(file->ComputeDrivenParameters(ClonesOf(*file), outputs)) << file->LastReason().english;
    ASSERT_EQ(outputs.size(), 9996U);
    EXPECT_EQ(outputs.back()->GetDouble(), 50 + 9994);
}

TEST(FamilyParameter, AnswersForValuesOfOtherKinds)
{
    Reason reason;
    const auto identities = std::make_shared<ParameterIdentities>(*ReadManifest(SampleManifest().dump(), reason));
    FamilyParameter parameter(identities, Dn, 2.75);
    EXPECT_EQ(parameter.GetInt(), 2);
    EXPECT_EQ(parameter.GetText(), L"");
    EXPECT_FALSE(parameter.GetBool());
    parameter.SetDouble(1e20);
    EXPECT_EQ(parameter.GetInt(), 0);
    parameter.SetDouble(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(parameter.GetInt(), 0);
    parameter.SetInt(-7);
    EXPECT_EQ(parameter.GetDouble(), -7.0);
    parameter.SetText(L"风管𠀀");
    EXPECT_EQ(parameter.GetText(), L"风管𠀀");
    EXPECT_EQ(parameter.GetDouble(), 0.0);
    EXPECT_EQ(parameter.GetInt(), 0);
    parameter.SetBool(true);
    EXPECT_TRUE(parameter.GetBool());
}

class FamilyFileFactoryTest : public ::testing::Test
{
protected:
    std::wstring Write(const char* name, const std::string& bytes) const
    {
        return folder.Write(QString::fromUtf8(name), QByteArray(bytes.data(), static_cast<int>(bytes.size())))
            .toStdWString();
    }

    TestFolder folder;
    RecordingKernel kernel;
    FamilyFileFactory factory;
};

TEST_F(FamilyFileFactoryTest, OpensFilesWhateverTheirName)
{
    const std::string bytes = RawArchive({{"manifest.json", SampleManifest().dump(), true}});
    for (const char* const name : {"阀 门.nuqfamily", "x_{00000000-0000-4000-8000-000000000000}", "a.tar_{0}.gz"}) {
        EXPECT_TRUE(factory.CreateFamilyFile(Write(name, bytes))) << name << factory.LastReason().english;
        EXPECT_FALSE(factory.LastReason());
    }
}

TEST_F(FamilyFileFactoryTest, KeepsWhyAFileWasRefused)
{
    EXPECT_FALSE(factory.CreateFamilyFile(Write("x", "no family")));
    EXPECT_EQ(factory.LastReason().code, "container.not-a-container");
    EXPECT_TRUE(factory.CreateFamilyFile(Write("y", RawArchive({{"manifest.json", SampleManifest().dump()}}))));
    EXPECT_FALSE(factory.LastReason());
}

TEST_F(FamilyFileFactoryTest, KeepsWhyTheLastOperationOnAnyFileFailed)
{
    const std::wstring path = Write("valve", RawArchive({{"manifest.json", SampleManifest().dump()}}));
    const OwnerPtr<zept::IFamilyFile> first = factory.CreateFamilyFile(path);
    const OwnerPtr<zept::IFamilyFile> second = factory.CreateFamilyFile(path);
    FamilyFile::Parameters inputs;
    inputs.push_back(first->GetTypeInfo().Types.front()->Parameters[Dn]->Clone());
    inputs[0]->SetDouble(1);
    EXPECT_FALSE(first->RegenerateGeometry(inputs));
    EXPECT_EQ(factory.LastReason().code, "value.out-of-range");
    EXPECT_TRUE(second->GetCurrentGeometry());
    EXPECT_FALSE(factory.LastReason());
}

TEST_F(FamilyFileFactoryTest, FilesOutliveIt)
{
    auto owned = std::make_unique<FamilyFileFactory>();
    const OwnerPtr<zept::IFamilyFile> file =
        owned->CreateFamilyFile(Write("valve", RawArchive({{"manifest.json", SampleManifest().dump()}})));
    owned.reset();
    EXPECT_TRUE(file->GetCurrentGeometry());
}

TEST_F(FamilyFileFactoryTest, NeedsTheFileOnlyForOpening)
{
    const std::wstring path = Write("valve", RawArchive({{"manifest.json", SampleManifest().dump()}}));
    const OwnerPtr<zept::IFamilyFile> file = factory.CreateFamilyFile(path);
    ASSERT_TRUE(QFile::remove(QString::fromStdWString(path)));
    EXPECT_TRUE(file->GetCurrentGeometry());
    FamilyFile::Parameters outputs;
    EXPECT_TRUE(file->ComputeDrivenParameters({}, outputs));
}

} // namespace
} // namespace familyfiles
