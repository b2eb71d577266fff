#include "support/BuiltLibrary.h"

#include "Reading/ParameterReader.h"

#include <gtest/gtest.h>
#include <set>

namespace {

const std::set<std::string> Keys{"code", "formula", "groupName", "id", "isDriveParameter", "isEssential", "isGeometry",
    "isInstance", "isOutputParameter", "isStandard", "name", "parameterDisplayType", "parameterType", "unit",
    "unitCode", "valueType", "values", "isBuildIn", "isShared", "isFromFile"};

std::vector<std::string> Codes(BuiltLibrary& library)
{
    return library.Texts("SELECT code FROM category WHERE level = 2");
}

TEST(PropertyTemplates, ExistForExactlyTheEndCategories)
{
    BuiltLibrary library;
    EXPECT_EQ(library.Count("SELECT count(*) FROM property_template"),
        library.Count(
            "SELECT count(*) FROM property_template t JOIN category c ON c.code = t.category_code AND c.level = 2"));
    EXPECT_EQ(library.Count("SELECT count(*) FROM property_template"),
        library.Count("SELECT count(*) FROM category WHERE level = 2"));
}

TEST(PropertyTemplates, HoldAllKeysOfTheFormatInTheirTypes)
{
    BuiltLibrary library;
    for (const std::string& code : Codes(library)) {
        for (const Definition& definition : library.Definitions(code)) {
            std::set<std::string> keys;
            for (const auto& [key, value] : definition.items()) {
                keys.insert(key);
                const bool isRight = key == "values"            ? value.is_object()
                                     : key.substr(0, 2) == "is" ? value.is_boolean()
                                                                : value.is_string();
                ASSERT_TRUE(isRight) << code << ' ' << key;
            }
            ASSERT_EQ(keys, Keys) << code;
        }
    }
}

TEST(PropertyTemplates, UseTheWordsOfTheHost)
{
    BuiltLibrary library;
    const std::map<std::string, std::set<std::string>> parameterTypes{
        {"Number", {"Int", "Double"}}, {"Logic", {"Bool"}}, {"Enum", {"String"}}, {"String", {"String"}}};
    const std::set<std::string> displayTypes{
        "Length", "Area", "Volume", "Angle", "Slope", "Number", "Text", "Density", "YesOrNo", "Float", "ValueList"};
    for (const std::string& code : Codes(library)) {
        for (const Definition& definition : library.Definitions(code)) {
            const std::string valueType = definition.at("valueType");
            ASSERT_TRUE(parameterTypes.count(valueType) == 1 &&
                        parameterTypes.at(valueType).count(definition.at("parameterType")) == 1)
                << code << ' ' << definition;
            ASSERT_EQ(displayTypes.count(definition.at("parameterDisplayType")), 1U) << definition;
            ASSERT_EQ(valueType == "Enum", !definition.at("values").empty()) << definition;
        }
    }
}

TEST(PropertyTemplates, NameEachParameterOnceInEachLanguage)
{
    BuiltLibrary library;
    for (const std::string& code : Codes(library)) {
        for (const bool isEnglish : {true, false}) {
            std::set<std::string> names;
            for (const Definition& definition : library.Definitions(code, isEnglish)) {
                ASSERT_TRUE(names.insert(definition.at("name")).second) << code << ' ' << definition.at("name");
                ASSERT_NE(definition.at("name"), "");
            }
        }
    }
}

TEST(PropertyTemplates, SayTheSameInBothLanguagesButForTheDisplayTexts)
{
    BuiltLibrary library;
    for (const std::string& code : Codes(library)) {
        std::vector<Definition> english = library.Definitions(code, true);
        std::vector<Definition> chinese = library.Definitions(code, false);
        ASSERT_EQ(english.size(), chinese.size());
        for (std::size_t at = 0; at < english.size(); ++at) {
            std::set<std::string> englishKeys;
            std::set<std::string> chineseKeys;
            for (const auto& [key, text] : english[at].at("values").items()) {
                englishKeys.insert(key);
            }
            for (const auto& [key, text] : chinese[at].at("values").items()) {
                chineseKeys.insert(key);
            }
            ASSERT_EQ(englishKeys, chineseKeys);
            for (const char* key : {"name", "groupName", "values"}) {
                english[at].erase(key);
                chinese[at].erase(key);
            }
            ASSERT_EQ(english[at], chinese[at]) << code;
        }
    }
}

TEST(PropertyTemplates, GiveEachParameterOneGuidEverywhere)
{
    BuiltLibrary library;
    std::map<std::string, std::string> guidOf;
    std::map<std::string, std::string> codeOf;
    for (const std::string& code : Codes(library)) {
        for (const Definition& definition : library.Definitions(code)) {
            const std::string parameter = definition.at("code");
            const std::string guid = definition.at("id");
            ASSERT_EQ(guidOf.emplace(parameter, guid).first->second, guid) << parameter;
            ASSERT_EQ(codeOf.emplace(guid, parameter).first->second, parameter) << guid;
            ASSERT_EQ(guid, samplelibrary::ParameterGuid(parameter));
        }
    }
    EXPECT_GT(guidOf.size(), 500U);
}

TEST(PropertyTemplates, GrowFromThePropertySetsOfTheKind)
{
    BuiltLibrary library;
    std::set<std::string> codes;
    for (const Definition& definition : library.Definitions("POW.PRD.MCB")) {
        codes.insert(definition.at("code"));
    }
    EXPECT_EQ(codes.count("Current"), 1U);
    EXPECT_EQ(codes.count("ProtectiveDeviceOccurrence.LongTimeDelay"), 1U);
    EXPECT_EQ(codes.count("ProtectiveDeviceBreakerUnitTypeMCB.ICS60898"), 1U);
    EXPECT_EQ(codes.count("ProtectiveDeviceTypeCircuitBreaker.ICW60947"), 1U);
    // Another predefined type's set, and a property that a parameter of the trade says already.
    EXPECT_EQ(codes.count("ProtectiveDeviceTypeFuseDisconnector.PowerLoss"), 0U);
    EXPECT_EQ(codes.count("ProtectiveDeviceBreakerUnitTypeMCB.ICN60898"), 0U);
    EXPECT_EQ(codes.count("ProtectiveDeviceTypeCommon.Reference"), 0U);
}

TEST(PropertyTemplates, MarkOccurrenceAndBuiltInParameters)
{
    BuiltLibrary library;
    for (const Definition& definition : library.Definitions("WAT.PUMP.INLINE")) {
        const std::string code = definition.at("code");
        EXPECT_EQ(definition.at("isInstance"), code == "SystemName" || code == "Elevation") << code;
        if (code == "ShaftPower") {
            EXPECT_EQ(definition.at("formula"), "Flow*Head/367/(Efficiency/100)");
            EXPECT_EQ(definition.at("isOutputParameter"), true);
            EXPECT_EQ(definition.at("unit"), "kW");
            EXPECT_EQ(definition.at("unitCode"), "KWT");
        }
        if (code == "ConnectionIn") {
            EXPECT_EQ(definition.at("isDriveParameter"), true);
            EXPECT_EQ(definition.at("isGeometry"), true);
        }
    }
}

} // namespace
