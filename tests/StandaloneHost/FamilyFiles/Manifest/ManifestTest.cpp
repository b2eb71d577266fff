#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/Manifest/ManifestReader.h"
#include "FamilyFiles/Manifest/ManifestWriter.h"
#include "support/NamedCase.h"
#include "support/SampleManifest.h"

#include <cmath>
#include <functional>
#include <gmock/gmock.h>
#include <random>
#include <string>
#include <thread>

namespace familyfiles {
namespace {

using Json = nlohmann::ordered_json;
using ::testing::ElementsAre;
using ::testing::Pair;

FamilyManifest ReadGood(const std::string& json)
{
    Reason reason;
    const std::optional<FamilyManifest> manifest = ReadManifest(json, reason);
    EXPECT_TRUE(manifest) << reason.english;
    return manifest.value();
}

Reason RefusalOf(const std::string& json)
{
    Reason reason;
    EXPECT_FALSE(ReadManifest(json, reason));
    EXPECT_TRUE(reason);
    EXPECT_FALSE(reason.english.empty());
    EXPECT_FALSE(reason.chinese.empty());
    return reason;
}

TEST(Manifest, IsReadWithAllItsParts)
{
    const FamilyManifest manifest = ReadGood(SampleManifest().dump());
    EXPECT_EQ(manifest.version, 1);
    EXPECT_EQ(manifest.name.chinese, "闸阀");
    EXPECT_EQ(manifest.name.english, "Gate valve");
    EXPECT_EQ(manifest.category, "WSP.VLV.GATE");
    ASSERT_EQ(manifest.parameters.size(), 6U);
    const ParameterDefinition& dn = manifest.parameters[0];
    EXPECT_EQ(dn.id, SampleGuid(1));
    EXPECT_EQ(dn.name, "DN");
    EXPECT_EQ(dn.label.chinese, "公称直径");
    EXPECT_EQ(dn.label.english, "Nominal diameter");
    EXPECT_EQ(dn.storageType, StorageType::FloatingPoint);
    EXPECT_EQ(dn.displayType, 1);
    EXPECT_EQ(dn.unit, "mm");
    EXPECT_FALSE(dn.isInstance);
    EXPECT_EQ(dn.minimum, 15.0);
    EXPECT_EQ(dn.maximum, 300.0);
    EXPECT_THAT(dn.allowed, ElementsAre(Value(50.0), Value(80.0), Value(100.5)));
    EXPECT_FALSE(dn.IsDriven());
    EXPECT_EQ(manifest.parameters[1].formula, "DN*3+50mm");
    EXPECT_TRUE(manifest.parameters[1].IsDriven());
    EXPECT_EQ(manifest.parameters[2].storageType, StorageType::Integer);
    EXPECT_EQ(manifest.parameters[2].defaultValue, Value(8));
    EXPECT_THAT(manifest.parameters[3].allowed, ElementsAre(Value(std::string("GG25")), Value(std::string("铸钢"))));
    EXPECT_TRUE(manifest.parameters[4].isInstance);
    ASSERT_EQ(manifest.types.size(), 2U);
    EXPECT_EQ(manifest.types[1].name, "DN80");
    EXPECT_THAT(manifest.types[1].values, ElementsAre(Pair(0, Value(80.0)), Pair(2, Value(12)),
                                              Pair(3, Value(std::string("铸钢"))), Pair(1, Value(0.29))));
    EXPECT_EQ(Json::parse(manifest.geometry), SampleManifest()["geometry"]);
    ASSERT_EQ(manifest.connectors.size(), 1U);
    EXPECT_EQ(manifest.connectors[0].name, "in");
    EXPECT_EQ(manifest.connectors[0].system, "water");
    EXPECT_THAT(manifest.connectors[0].position, ElementsAre("-L/2", "0", "0"));
    EXPECT_THAT(manifest.connectors[0].direction, ElementsAre("-1", "0", "0"));
    EXPECT_EQ(manifest.connectors[0].shape, "round");
    EXPECT_THAT(manifest.connectors[0].size, ElementsAre("DN"));
    ASSERT_TRUE(manifest.built);
    EXPECT_EQ(manifest.built->volume, 392699.08);
    EXPECT_EQ(manifest.built->area, 35342.9);
    EXPECT_THAT(manifest.built->box, ElementsAre(0, -25, -25, 200, 25, 25.5));
    EXPECT_EQ(manifest.built->kernel, "a kernel 7.6");
    EXPECT_EQ(manifest.FindParameter("Bolts"), 2U);
    EXPECT_EQ(manifest.FindParameter("bolts"), std::nullopt);
}

TEST(Manifest, NeedsLittle)
{
    Json json = SampleManifest();
    for (const char* const member : {"geometry", "connectors", "built"}) {
        json.erase(member);
    }
    json["parameters"] = Json::array({{{"id", SampleGuid(9)}, {"name", "A"}, {"storageType", 4}}});
    json["types"] = Json::array({{{"name", "only"}}});
    const FamilyManifest manifest = ReadGood(json.dump());
    EXPECT_EQ(manifest.geometry, "");
    EXPECT_FALSE(manifest.built);
    EXPECT_TRUE(manifest.types[0].values.empty());
}

TEST(Manifest, IsWrittenAsItWasRead)
{
    const Json json = SampleManifest();
    const std::string written = WriteManifest(ReadGood(json.dump()));
    EXPECT_EQ(Json::parse(written).dump(1), json.dump(1));
    EXPECT_EQ(WriteManifest(ReadGood(written)), written);
}

TEST(Manifest, KeepsMembersThatItDoesNotKnow)
{
    Json json = SampleManifest();
    const Json strange{
        {"deep", {{"list", {1, 2.5, nullptr, "文", 18446744073709551615U, -9007199254740993}}}}, {"u", "\u0001"}};
    json["strange"] = strange;
    json["name"]["de"] = "Absperrschieber";
    json["parameters"][1]["strange"] = strange;
    json["parameters"][0]["label"]["fr"] = "Diamètre";
    json["types"][0]["strange"] = strange;
    json["geometry"]["strange"] = strange;
    json["connectors"][0]["strange"] = strange;
    json["built"]["strange"] = strange;
    EXPECT_EQ(Json::parse(WriteManifest(ReadGood(json.dump()))).dump(1), json.dump(1));
}

TEST(Manifest, KeepsNumbersToTheLastBit)
{
    std::mt19937_64 random(42);
    Json json = SampleManifest();
    json["parameters"][0].erase("allowed");
    json["parameters"][0]["minimum"] = -1e300;
    json["parameters"][0]["maximum"] = 1e300;
    for (int round = 0; round < 2000; ++round) {
        const double number = std::ldexp(static_cast<double>(random() >> 11U), static_cast<int>(random() % 200) - 120) *
                              (random() % 2 == 0 ? 1 : -1);
        json["types"][0]["values"]["DN"] = number;
        const FamilyManifest manifest = ReadGood(json.dump());
        ASSERT_EQ(manifest.types[0].values[0].second, Value(number));
        ASSERT_EQ(ReadGood(WriteManifest(manifest)).types[0].values[0].second, Value(number));
    }
}

struct SchemaRow : testsupport::NamedCase
{
    std::function<void(Json&)> change;
    const char* subject;
    const char* english;
    const char* chinese;
};

class ManifestSchema : public ::testing::TestWithParam<SchemaRow>
{
};

TEST_P(ManifestSchema, IsEnforced)
{
    Json json = SampleManifest();
    GetParam().change(json);
    const Reason reason = RefusalOf(json.dump());
    EXPECT_EQ(reason.code, "manifest.schema");
    EXPECT_EQ(reason.subject, GetParam().subject);
    EXPECT_EQ(reason.english, std::string("The manifest is not as it has to be: ") + GetParam().english + ".");
    EXPECT_EQ(reason.chinese, std::string("清单不合规范：") + GetParam().chinese + "。");
}

SchemaRow Broken(
    const char* name, std::function<void(Json&)> change, const char* subject, const char* english, const char* chinese)
{
    return {{name}, std::move(change), subject, english, chinese};
}

INSTANTIATE_TEST_SUITE_P(Family, ManifestSchema,
    ::testing::Values(Broken(
                          "NoVersion", [](Json& m) { m.erase("version"); }, "/",
                          "/ lacks a member that has to be there", "/缺少必需的成员"),
        Broken(
            "NoName", [](Json& m) { m.erase("name"); }, "/", "/ lacks a member that has to be there",
            "/缺少必需的成员"),
        Broken(
            "NoCategory", [](Json& m) { m.erase("category"); }, "/", "/ lacks a member that has to be there",
            "/缺少必需的成员"),
        Broken(
            "NoParameters", [](Json& m) { m.erase("parameters"); }, "/", "/ lacks a member that has to be there",
            "/缺少必需的成员"),
        Broken(
            "NoTypes", [](Json& m) { m.erase("types"); }, "/", "/ lacks a member that has to be there",
            "/缺少必需的成员"),
        Broken(
            "VersionZero", [](Json& m) { m["version"] = 0; }, "/version", "/version is too small", "/version过小"),
        Broken(
            "VersionText", [](Json& m) { m["version"] = "1"; }, "/version", "/version is of the wrong kind",
            "/version类型不对"),
        Broken(
            "BrokenVersion", [](Json& m) { m["version"] = 0.5; }, "/version", "/version is of the wrong kind",
            "/version类型不对"),
        Broken(
            "NameText", [](Json& m) { m["name"] = "valve"; }, "/name", "/name is of the wrong kind", "/name类型不对"),
        Broken(
            "NameNumber", [](Json& m) { m["name"]["zh"] = 5; }, "/name/zh", "/name/zh is of the wrong kind",
            "/name/zh类型不对"),
        Broken(
            "LongName", [](Json& m) { m["name"]["en"] = std::string(1001, 'x'); }, "/name/en", "/name/en is too long",
            "/name/en过长"),
        Broken(
            "EmptyCategory", [](Json& m) { m["category"] = ""; }, "/category", "/category is empty", "/category为空"),
        Broken(
            "LongCategory", [](Json& m) { m["category"] = std::string(201, 'x'); }, "/category",
            "/category is too long", "/category过长"),
        Broken(
            "ParametersObject", [](Json& m) { m["parameters"] = Json::object(); }, "/parameters",
            "/parameters is of the wrong kind", "/parameters类型不对"),
        Broken(
            "NoType", [](Json& m) { m["types"] = Json::array(); }, "/types", "/types has too few entries",
            "/types条目过少"),
        Broken(
            "GeometryText", [](Json& m) { m["geometry"] = "cylinder"; }, "/geometry", "/geometry is of the wrong kind",
            "/geometry类型不对"),
        Broken(
            "TooManyConnectors", [](Json& m) { m["connectors"] = Json(std::vector<Json>(257, m["connectors"][0])); },
            "/connectors", "/connectors has too many entries", "/connectors条目过多")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(Parameter, ManifestSchema,
    ::testing::Values(Broken(
                          "NoObject", [](Json& m) { m["parameters"][1] = 5; }, "/parameters/1",
                          "/parameters/1 is of the wrong kind", "/parameters/1类型不对"),
        Broken(
            "NoId", [](Json& m) { m["parameters"][0].erase("id"); }, "DN",
            "/parameters/0 (\"DN\") lacks a member that has to be there", "/parameters/0（“DN”）缺少必需的成员"),
        Broken(
            "NoName", [](Json& m) { m["parameters"][0].erase("name"); }, "/parameters/0",
            "/parameters/0 lacks a member that has to be there", "/parameters/0缺少必需的成员"),
        Broken(
            "NoStorageType", [](Json& m) { m["parameters"][0].erase("storageType"); }, "DN",
            "/parameters/0 (\"DN\") lacks a member that has to be there", "/parameters/0（“DN”）缺少必需的成员"),
        Broken(
            "IdNoGuid", [](Json& m) { m["parameters"][0]["id"] = "DN"; }, "DN",
            "/parameters/0/id (\"DN\") has not the right form", "/parameters/0/id（“DN”）格式不对"),
        Broken(
            "IdInBraces", [](Json& m) { m["parameters"][0]["id"] = "{" + SampleGuid(1) + "}"; }, "DN",
            "/parameters/0/id (\"DN\") has not the right form", "/parameters/0/id（“DN”）格式不对"),
        Broken(
            "EmptyName", [](Json& m) { m["parameters"][0]["name"] = ""; }, "/parameters/0/name",
            "/parameters/0/name is empty", "/parameters/0/name为空"),
        Broken(
            "LongName", [](Json& m) { m["parameters"][0]["name"] = std::string(201, 'x'); },
            "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
            "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx",
            "/parameters/0/name (\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…\") is too long",
            "/parameters/0/name（“xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…”）过长"),
        Broken(
            "UnknownStorageType", [](Json& m) { m["parameters"][0]["storageType"] = 7; }, "DN",
            "/parameters/0/storageType (\"DN\") is none of the possible values",
            "/parameters/0/storageType（“DN”）不在可选值之中"),
        Broken(
            "DisplayTypeText", [](Json& m) { m["parameters"][0]["displayType"] = "Length"; }, "DN",
            "/parameters/0/displayType (\"DN\") is of the wrong kind", "/parameters/0/displayType（“DN”）类型不对"),
        Broken(
            "UnitNumber", [](Json& m) { m["parameters"][0]["unit"] = 5; }, "DN",
            "/parameters/0/unit (\"DN\") is of the wrong kind", "/parameters/0/unit（“DN”）类型不对"),
        Broken(
            "InstanceText", [](Json& m) { m["parameters"][0]["isInstance"] = "yes"; }, "DN",
            "/parameters/0/isInstance (\"DN\") is of the wrong kind", "/parameters/0/isInstance（“DN”）类型不对"),
        Broken(
            "MinimumText", [](Json& m) { m["parameters"][0]["minimum"] = "15"; }, "DN",
            "/parameters/0/minimum (\"DN\") is of the wrong kind", "/parameters/0/minimum（“DN”）类型不对"),
        Broken(
            "MaximumNull", [](Json& m) { m["parameters"][0]["maximum"] = nullptr; }, "DN",
            "/parameters/0/maximum (\"DN\") is of the wrong kind", "/parameters/0/maximum（“DN”）类型不对"),
        Broken(
            "NothingAllowed", [](Json& m) { m["parameters"][0]["allowed"] = Json::array(); }, "DN",
            "/parameters/0/allowed (\"DN\") has too few entries", "/parameters/0/allowed（“DN”）条目过少"),
        Broken(
            "AllowedNull", [](Json& m) { m["parameters"][0]["allowed"][1] = nullptr; }, "DN",
            "/parameters/0/allowed/1 (\"DN\") is of the wrong kind", "/parameters/0/allowed/1（“DN”）类型不对"),
        Broken(
            "DefaultObject", [](Json& m) { m["parameters"][2]["default"] = Json::object(); }, "Bolts",
            "/parameters/2/default (\"Bolts\") is of the wrong kind", "/parameters/2/default（“Bolts”）类型不对"),
        Broken(
            "EmptyFormula", [](Json& m) { m["parameters"][1]["formula"] = ""; }, "L",
            "/parameters/1/formula (\"L\") is empty", "/parameters/1/formula（“L”）为空"),
        Broken(
            "LongFormula", [](Json& m) { m["parameters"][1]["formula"] = std::string(4097, '1'); }, "L",
            "/parameters/1/formula (\"L\") is too long", "/parameters/1/formula（“L”）过长"),
        Broken(
            "FormulaNumber", [](Json& m) { m["parameters"][1]["formula"] = 5; }, "L",
            "/parameters/1/formula (\"L\") is of the wrong kind", "/parameters/1/formula（“L”）类型不对")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(TypesAndMore, ManifestSchema,
    ::testing::Values(Broken(
                          "TypeWithoutName", [](Json& m) { m["types"][1].erase("name"); }, "/types/1",
                          "/types/1 lacks a member that has to be there", "/types/1缺少必需的成员"),
        Broken(
            "EmptyTypeName", [](Json& m) { m["types"][1]["name"] = ""; }, "/types/1/name", "/types/1/name is empty",
            "/types/1/name为空"),
        Broken(
            "ValuesList",
            [](Json& m) {
                m["types"][1]["values"] = Json::array({1, 2});
            },
            "DN80", "/types/1/values (\"DN80\") is of the wrong kind", "/types/1/values（“DN80”）类型不对"),
        Broken(
            "ValueNull", [](Json& m) { m["types"][0]["values"]["DN"] = nullptr; }, "DN50",
            "/types/0/values/DN (\"DN50\") is of the wrong kind", "/types/0/values/DN（“DN50”）类型不对"),
        Broken(
            "ValueTooLong", [](Json& m) { m["types"][0]["values"]["Body"] = std::string(1000001, 'x'); }, "DN50",
            "/types/0/values/Body (\"DN50\") is too long", "/types/0/values/Body（“DN50”）过长"),
        Broken(
            "ConnectorWithoutPosition", [](Json& m) { m["connectors"][0].erase("position"); }, "in",
            "/connectors/0 (\"in\") lacks a member that has to be there", "/connectors/0（“in”）缺少必需的成员"),
        Broken(
            "FlatPosition", [](Json& m) { m["connectors"][0]["position"].erase(2); }, "in",
            "/connectors/0/position (\"in\") has too few entries", "/connectors/0/position（“in”）条目过少"),
        Broken(
            "DirectionOfFour", [](Json& m) { m["connectors"][0]["direction"].push_back("0"); }, "in",
            "/connectors/0/direction (\"in\") has too many entries", "/connectors/0/direction（“in”）条目过多"),
        Broken(
            "PositionOfFlags", [](Json& m) { m["connectors"][0]["position"][0] = true; }, "in",
            "/connectors/0/position/0 (\"in\") is of the wrong kind", "/connectors/0/position/0（“in”）类型不对"),
        Broken(
            "UnknownShape", [](Json& m) { m["connectors"][0]["shape"] = "star"; }, "in",
            "/connectors/0/shape (\"in\") is none of the possible values", "/connectors/0/shape（“in”）不在可选值之中"),
        Broken(
            "NoSize", [](Json& m) { m["connectors"][0]["size"] = Json::array(); }, "in",
            "/connectors/0/size (\"in\") has too few entries", "/connectors/0/size（“in”）条目过少"),
        Broken(
            "NegativeVolume", [](Json& m) { m["built"]["volume"] = -1; }, "/built/volume", "/built/volume is too small",
            "/built/volume过小"),
        Broken(
            "BoxOfFive", [](Json& m) { m["built"]["box"].erase(5); }, "/built/box", "/built/box has too few entries",
            "/built/box条目过少"),
        Broken(
            "BuiltByNobody", [](Json& m) { m["built"].erase("kernel"); }, "/built",
            "/built lacks a member that has to be there", "/built缺少必需的成员")),
    testsupport::RowName());

struct CheckRow : testsupport::NamedCase
{
    std::function<void(Json&)> change;
    const char* code;
    const char* subject;
    const char* english;
    const char* chinese;
};

class ManifestChecks : public ::testing::TestWithParam<CheckRow>
{
};

TEST_P(ManifestChecks, SayWhatASchemaCannot)
{
    Json json = SampleManifest();
    GetParam().change(json);
    const Reason reason = RefusalOf(json.dump());
    EXPECT_EQ(reason.code, std::string("manifest.") + GetParam().code);
    EXPECT_EQ(reason.subject, GetParam().subject);
    EXPECT_EQ(reason.english, std::string("The manifest ") + GetParam().english + ".");
    EXPECT_EQ(reason.chinese, std::string("清单") + GetParam().chinese + "。");
}

CheckRow Wrong(const char* name, std::function<void(Json&)> change, const char* code, const char* subject,
    const char* english, const char* chinese)
{
    return {{name}, std::move(change), code, subject, english, chinese};
}

INSTANTIATE_TEST_SUITE_P(Rules, ManifestChecks,
    ::testing::Values(Wrong(
                          "SameId", [](Json& m) { m["parameters"][3]["id"] = m["parameters"][0]["id"]; },
                          "duplicate-id", "Body", "gives \"DN\" and \"Body\" the same id", "中“DN”与“Body”的 id 相同"),
        Wrong(
            "SameIdInOtherCase",
            [](Json& m) {
                m["parameters"][0]["id"] = "abcdef00-0000-4000-8000-000000000000";
                m["parameters"][3]["id"] = "ABCDEF00-0000-4000-8000-000000000000";
            },
            "duplicate-id", "Body", "gives \"DN\" and \"Body\" the same id", "中“DN”与“Body”的 id 相同"),
        Wrong(
            "SameParameterName", [](Json& m) { m["parameters"][3]["name"] = "DN"; }, "unknown-name", "Body",
            "gives in type \"DN50\" a value to \"Body\", which is no parameter",
            "在族类型“DN50”中给不存在的参数“Body”赋值"),
        Wrong(
            "SameNameWithoutValue", [](Json& m) { m["parameters"][5]["name"] = "DN"; }, "duplicate-name", "DN",
            "has two parameters \"DN\"", "中有两个名为“DN”的参数"),
        Wrong(
            "SameTypeName", [](Json& m) { m["types"][1]["name"] = "DN50"; }, "duplicate-name", "DN50",
            "has two types \"DN50\"", "中有两个名为“DN50”的族类型"),
        Wrong(
            "SameConnectorName", [](Json& m) { m["connectors"].push_back(m["connectors"][0]); }, "duplicate-name", "in",
            "has two connectors \"in\"", "中有两个名为“in”的连接件"),
        Wrong(
            "NameWithBracket", [](Json& m) { m["parameters"][5]["name"] = "a]b"; }, "bad-name", "a]b",
            "has the name \"a]b\", which holds a control character or a bracket", "中的名称“a]b”含有控制字符或方括号"),
        Wrong(
            "NameWithControl", [](Json& m) { m["parameters"][5]["name"] = "a\nb"; }, "bad-name", "a\nb",
            "has the name \"a b\", which holds a control character or a bracket", "中的名称“a b”含有控制字符或方括号"),
        Wrong(
            "UnknownUnit", [](Json& m) { m["parameters"][0]["unit"] = "mn"; }, "unknown-unit", "DN",
            "gives \"DN\" the unit \"mn\", which is not known", "中“DN”的单位“mn”未知"),
        Wrong(
            "UnknownParameterInType", [](Json& m) { m["types"][0]["values"]["dn"] = 50; }, "unknown-name", "dn",
            "gives in type \"DN50\" a value to \"dn\", which is no parameter",
            "在族类型“DN50”中给不存在的参数“dn”赋值"),
        Wrong(
            "BoundsCrossed", [](Json& m) { m["parameters"][0]["minimum"] = 301; }, "bad-bounds", "DN",
            "gives \"DN\" bounds that no value meets", "中“DN”的取值范围无效"),
        Wrong(
            "BoundsOfText", [](Json& m) { m["parameters"][3]["minimum"] = 1; }, "bad-bounds", "Body",
            "gives \"Body\" bounds that no value meets", "中“Body”的取值范围无效"),
        Wrong(
            "BoundsOfFlag", [](Json& m) { m["parameters"][4]["maximum"] = 1; }, "bad-bounds", "保温",
            "gives \"保温\" bounds that no value meets", "中“保温”的取值范围无效"),
        Wrong(
            "AllowedOutsideBounds", [](Json& m) { m["parameters"][0]["allowed"][2] = 301; }, "bad-value", "DN",
            "gives an impossible value in the definition: \"DN\" cannot be 301 mm; possible: 15 mm … 300 mm",
            "在定义中给出无效值：“DN”不能为 301 mm；可选：15 mm … 300 mm"),
        Wrong(
            "AllowedOfAnotherKind", [](Json& m) { m["parameters"][0]["allowed"][1] = "80"; }, "bad-value", "DN",
            "gives an impossible value in the definition: \"DN\" has to be a number",
            "在定义中给出无效值：“DN”必须是数值"),
        Wrong(
            "DefaultOutsideBounds", [](Json& m) { m["parameters"][2]["default"] = 17; }, "bad-value", "Bolts",
            "gives an impossible value in the definition: \"Bolts\" cannot be 17; possible: 4 … 16",
            "在定义中给出无效值：“Bolts”不能为 17；可选：4 … 16"),
        Wrong(
            "BrokenInteger", [](Json& m) { m["types"][1]["values"]["Bolts"] = 8.5; }, "bad-value", "Bolts",
            "gives an impossible value in type \"DN80\": \"Bolts\" has to be a whole number of 32 bits",
            "在族类型“DN80”中给出无效值：“Bolts”必须是32 位整数"),
        Wrong(
            "LargeInteger", [](Json& m) { m["types"][1]["values"]["Bolts"] = 2147483648; }, "bad-value", "Bolts",
            "gives an impossible value in type \"DN80\": \"Bolts\" has to be a whole number of 32 bits",
            "在族类型“DN80”中给出无效值：“Bolts”必须是32 位整数"),
        Wrong(
            "FlagAsNumber", [](Json& m) { m["types"][0]["values"]["保温"] = 1; }, "bad-value", "保温",
            "gives an impossible value in type \"DN50\": \"保温\" has to be a yes/no value",
            "在族类型“DN50”中给出无效值：“保温”必须是是/否值"),
        Wrong(
            "NumberAsText", [](Json& m) { m["types"][0]["values"]["Body"] = 25; }, "bad-value", "Body",
            "gives an impossible value in type \"DN50\": \"Body\" has to be a text",
            "在族类型“DN50”中给出无效值：“Body”必须是文本"),
        Wrong(
            "ValueNotAllowed", [](Json& m) { m["types"][0]["values"]["DN"] = 65; }, "bad-value", "DN",
            "gives an impossible value in type \"DN50\": \"DN\" cannot be 65 mm; possible: 50, 80, 100.5 mm",
            "在族类型“DN50”中给出无效值：“DN”不能为 65 mm；可选：50, 80, 100.5 mm"),
        Wrong(
            "TextNotAllowed", [](Json& m) { m["types"][0]["values"]["Body"] = "gg25"; }, "bad-value", "Body",
            "gives an impossible value in type \"DN50\": \"Body\" cannot be gg25; possible: GG25, 铸钢",
            "在族类型“DN50”中给出无效值：“Body”不能为 gg25；可选：GG25, 铸钢"),
        Wrong(
            "MissingValueOutsideBounds", [](Json& m) { m["types"][1]["values"].erase("DN"); }, "bad-value", "DN",
            "gives an impossible value in type \"DN80\": \"DN\" cannot be 0 mm; possible: 15 mm … 300 mm",
            "在族类型“DN80”中给出无效值：“DN”不能为 0 mm；可选：15 mm … 300 mm")),
    testsupport::RowName());

TEST(Manifest, AcceptsWhatTextsOfSixDecimalsLose)
{
    Json json = SampleManifest();
    json["types"][0]["values"]["DN"] = 50.0000004;
    ReadGood(json.dump());
    json["types"][0]["values"]["DN"] = 50.000001;
    EXPECT_EQ(RefusalOf(json.dump()).code, "manifest.bad-value");
}

TEST(Manifest, RefusesNewerVersionsWhateverTheyHold)
{
    const std::string english =
        "The manifest is of version 2 of the format; this program reads up to version 1. A newer "
        "program is needed.";
    Json json = SampleManifest();
    json["version"] = 2;
    EXPECT_EQ(RefusalOf(json.dump()).english, english);
    json["parameters"] = "somewhere else";
    const Reason reason = RefusalOf(json.dump());
    EXPECT_EQ(reason.code, "manifest.newer-version");
    EXPECT_EQ(reason.subject, "2");
    EXPECT_EQ(reason.english, english);
    EXPECT_EQ(reason.chinese, "清单的格式版本为 2，本程序最高支持版本 1，请使用更新的程序。");
}

TEST(Manifest, RefusesWhatIsNoFamily)
{
    for (const char* const text : {"{}", "[]", "5", "\"x\"", "null", R"({"format": "other", "version": 1})",
             R"({"format": 5})", R"({"version": 2})"}) {
        const Reason reason = RefusalOf(text);
        EXPECT_EQ(reason.code, "manifest.not-a-family") << text;
        EXPECT_EQ(reason.english, "The manifest is not that of a family file.");
        EXPECT_EQ(reason.chinese, "清单不是族文件的清单。");
    }
}

TEST(Manifest, RefusesWhatIsNoJson)
{
    const std::string good = SampleManifest().dump(1);
    for (const std::string& text : {std::string(), std::string("{"), std::string("{'a': 1}"),
             std::string("{\"a\": 01}"), std::string("{\"a\": nan}"), std::string("{\"a\": 1e999}"),
             std::string("{\"a\": \"\xFF\"}"), std::string("{\"a\": \"\\uD800\"}"), good + "x", good + '\0',
             "{\"a\": \"" + std::string(1, '\x01') + "\"}"}) {
        EXPECT_EQ(RefusalOf(text).code, "manifest.not-json") << text.substr(0, 30);
    }
    const Reason reason = RefusalOf(good.substr(0, good.find("\"category\"")) + "?");
    EXPECT_EQ(reason.english, "The manifest is no JSON: reading stops in line 8.");
    EXPECT_EQ(reason.chinese, "清单不是 JSON：在第 8 行中断。");
}

TEST(Manifest, MayBeginWithAByteOrderMark)
{
    EXPECT_EQ(ReadGood("\xEF\xBB\xBF" + SampleManifest().dump()).category, "WSP.VLV.GATE");
}

TEST(Manifest, IsRefusedWhenCutAnywhere)
{
    const std::string good = SampleManifest().dump();
    for (std::size_t size = 0; size < good.size(); ++size) {
        Reason reason;
        ASSERT_FALSE(ReadManifest(std::string_view(good).substr(0, size), reason)) << size;
        ASSERT_EQ(reason.code, "manifest.not-json") << size;
    }
}

TEST(Manifest, RefusesNestingBeforeParsing)
{
    for (const std::size_t depth : {201U, 10000U, 4000000U}) {
        const std::string open(depth, '[');
        const Reason reason = RefusalOf(R"({"format": "tarnnuq-family", "x": )" + open);
        EXPECT_EQ(reason.code, "manifest.too-deep");
        EXPECT_EQ(reason.english, "The manifest is nested deeper than 200 levels.");
        EXPECT_EQ(reason.chinese, "清单嵌套超过 200 层。");
    }
}

TEST(Manifest, AcceptsDeepMembersThatItDoesNotKnow)
{
    Json json = SampleManifest();
    json["strange"] = Json::parse(std::string(190, '[') + std::string(190, ']'));
    json["brackets"] = std::string(1000, '[') + "\"\\" + std::string(1000, '{');
    EXPECT_EQ(Json::parse(WriteManifest(ReadGood(json.dump()))).dump(), json.dump());
}

TEST(Manifest, RefusesTwoMembersOfOneName)
{
    const std::string good = SampleManifest().dump();
    const auto withTwice = [&](const std::string& before, const std::string& member) {
        std::string text = good;
        return text.insert(text.find(before) + before.size(), member);
    };
    for (const std::string& text :
        {withTwice("{", R"("category": "other",)"), withTwice(R"("values":{)", R"("DN": 80,)"),
            withTwice(R"("geometry":{)", R"("steps": [],)"), withTwice(R"("zh":"闸阀")", R"(,"zh":"球阀")")}) {
        const Reason reason = RefusalOf(text);
        EXPECT_EQ(reason.code, "manifest.duplicate-member");
    }
    EXPECT_EQ(RefusalOf(withTwice(R"("values":{)", R"("DN": 80,)")).english,
        "The manifest has the member \"DN\" twice in one object.");
    EXPECT_EQ(RefusalOf(withTwice(R"("values":{)", R"("DN": 80,)")).chinese, "清单的同一对象中成员“DN”重复。");
}

TEST(Manifest, RefusesMoreThanItsLimit)
{
    const Reason reason = RefusalOf(std::string(FamilyFileReader::MaximalManifestSize + 1, ' '));
    EXPECT_EQ(reason.code, "manifest.too-large");
    EXPECT_EQ(reason.english, "The manifest is larger than 8 MiB.");
}

Json ManyParameters(unsigned count)
{
    Json json = SampleManifest();
    json.erase("connectors");
    json["parameters"] = Json::array();
    for (unsigned i = 0; i < count; ++i) {
        json["parameters"].push_back(
            {{"id", SampleGuid(i)}, {"name", "p" + std::to_string(i)}, {"storageType", 5}, {"unit", "mm"}});
    }
    json["types"] = Json::array({{{"name", "one"}, {"values", Json::object()}}});
    return json;
}

TEST(Manifest, HasRoomForTenThousandParameters)
{
    const FamilyManifest manifest = ReadGood(ManyParameters(10000).dump());
    EXPECT_EQ(manifest.parameters.size(), 10000U);
    EXPECT_EQ(manifest.parameters.back().name, "p9999");
}

TEST(Manifest, RefusesAbsurdCounts)
{
    EXPECT_EQ(RefusalOf(ManyParameters(20001).dump()).code, "manifest.schema");
    Json json = ManyParameters(1001);
    json["types"] = Json::array();
    for (int i = 0; i < 1000; ++i) {
        json["types"].push_back({{"name", std::to_string(i)}});
    }
    const Reason reason = RefusalOf(json.dump());
    EXPECT_EQ(reason.code, "manifest.too-many-values");
    EXPECT_EQ(reason.english, "The manifest has more than 1000000 values in its types.");
}

TEST(Manifest, KeepsTextsOfAMillionCharacters)
{
    Json json = SampleManifest();
    std::string text;
    for (int i = 0; i < 1000000; ++i) {
        text += "风";
    }
    json["parameters"][3].erase("allowed");
    json["types"][0]["values"]["Body"] = text;
    const FamilyManifest manifest = ReadGood(json.dump());
    EXPECT_EQ(manifest.types[0].values[1].second, Value(text));
}

TEST(Manifest, IsReadOnSeveralThreadsAtOnce)
{
    const std::string good = SampleManifest().dump();
    std::vector<int> counts(4, 0);
    std::vector<std::thread> threads;
    for (int& count : counts) {
        threads.emplace_back([&good, &count] {
            for (int round = 0; round < 50; ++round) {
                Reason reason;
                count += ReadManifest(good, reason) ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(counts, ElementsAre(50, 50, 50, 50));
}

/// Each value of the sample, one after another, is replaced by others: whatever comes out, it is read or refused with a
/// reason.
TEST(Manifest, WithstandsEveryReplacedValue)
{
    const Json good = SampleManifest();
    const Json replacements = Json::array({nullptr, true, -1, 0, 1.5, 1e308, "", "DN", "1/0", Json::array(),
        Json::object(), Json::array({Json::object()})});
    const Json flat = good.flatten();
    int refused = 0;
    for (const auto& item : flat.items()) {
        for (const Json& replacement : replacements) {
            Json json = good;
            json[Json::json_pointer(item.key())] = replacement;
            Reason reason;
            const std::optional<FamilyManifest> manifest = ReadManifest(json.dump(), reason);
            ASSERT_NE(manifest.has_value(), static_cast<bool>(reason)) << item.key();
            if (manifest) {
                ASSERT_TRUE(ReadManifest(WriteManifest(*manifest), reason)) << item.key() << reason.english;
            } else {
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 400);
}

} // namespace
} // namespace familyfiles
