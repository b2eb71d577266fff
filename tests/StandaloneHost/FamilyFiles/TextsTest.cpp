#include "FamilyFiles/Formulas/Unit.h"
#include "FamilyFiles/Manifest/Value.h"
#include "FamilyFiles/ShortText.h"
#include "FamilyFiles/Utf8.h"

#include <cmath>
#include <fstream>
#include <gmock/gmock.h>
#include <limits>
#include <set>
#include <sstream>

namespace familyfiles {
namespace {

TEST(Utf8, ReadsCharactersOfAllSizes)
{
    const std::string text = "a\xC3\xA9\xE9\xA3\x8E\xF0\xA0\x80\x80";
    EXPECT_EQ(Utf8At(text, 0).code, U'a');
    EXPECT_EQ(Utf8At(text, 1).code, U'é');
    EXPECT_EQ(Utf8At(text, 3).code, U'风');
    EXPECT_EQ(Utf8At(text, 6).code, U'\U00020000');
    EXPECT_EQ(CharactersBefore(text, 6), 3U);
    EXPECT_EQ(CharactersBefore(text, 100), 4U);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_TRUE(IsUtf8(""));
}

TEST(Utf8, RefusesWhatIsNoCharacter)
{
    for (const std::string& bad : {std::string("\xFF"), std::string("\x80"), std::string("\xC0\xAF"),
             std::string("\xC1\xBF"), std::string("\xE0\x80\xAF"), std::string("\xED\xA0\x80"),
             std::string("\xF4\x90\x80\x80"), std::string("\xF8\x88\x80\x80\x80"), std::string("\xE9\xA3"),
             std::string("\xE9"), std::string("\xE9\x41\x42"), std::string("\xF0\x80\x80\x80")}) {
        EXPECT_FALSE(IsUtf8(bad)) << ::testing::PrintToString(bad);
        EXPECT_EQ(Utf8At(bad, 0).code, U'\uFFFD');
        EXPECT_EQ(Utf8At(bad, 0).size, 1U);
    }
    for (const std::string& good : {std::string("\xEF\xBF\xBF"), std::string("\xF4\x8F\xBF\xBF"),
             std::string("\xED\x9F\xBF"), std::string("\xE0\xA0\x80"), std::string("\xC2\x80"), std::string("\0", 1)}) {
        EXPECT_TRUE(IsUtf8(good)) << ::testing::PrintToString(good);
    }
}

TEST(ShortText, CutsAfterCharactersNotBytes)
{
    EXPECT_EQ(ShortText("风管阀门", 4), "风管阀门");
    EXPECT_EQ(ShortText("风管阀门", 3), "风管阀…");
    EXPECT_EQ(ShortText(""), "");
    EXPECT_EQ(ShortText("a\nb\x7F"
                        "c\xC2\x85"
                        "d\xFF"),
        "a b c d?");
}

TEST(Value, HasAShortText)
{
    EXPECT_EQ(ValueText(true), "true");
    EXPECT_EQ(ValueText(false), "false");
    EXPECT_EQ(ValueText(-5), "-5");
    EXPECT_EQ(ValueText(0.1), "0.1");
    EXPECT_EQ(ValueText(1e300), "1e+300");
    EXPECT_EQ(ValueText(50.0), "50");
    EXPECT_EQ(ValueText(std::string("铸钢")), "铸钢");
}

TEST(Value, IsEmptyInTheWayOfItsType)
{
    EXPECT_EQ(EmptyValue(StorageType::YesNo), Value(false));
    EXPECT_EQ(EmptyValue(StorageType::Integer), Value(0));
    EXPECT_EQ(EmptyValue(StorageType::FloatingPoint), Value(0.0));
    EXPECT_EQ(EmptyValue(StorageType::Text), Value(std::string()));
    for (const StorageType type :
        {StorageType::YesNo, StorageType::Integer, StorageType::FloatingPoint, StorageType::Text}) {
        EXPECT_EQ(StorageTypeOf(EmptyValue(type)), type);
    }
}

TEST(Unit, KnowsEveryUnitOfTheCatalogue)
{
    std::ifstream file(UNITS_TABLE);
    std::string line;
    int count = 0;
    while (std::getline(file, line)) {
        std::istringstream columns(line);
        std::string key;
        std::string symbol;
        if (line.empty() || line[0] == '#' || !std::getline(columns, key, '\t') ||
            !std::getline(columns, symbol, '\t') || key == "key") {
            continue;
        }
        ++count;
        EXPECT_NE(Unit::Find(symbol), nullptr) << symbol;
    }
    EXPECT_GT(count, 60);
}

TEST(Unit, HasABaseUnitForEachQuantity)
{
    std::set<std::string_view> symbols;
    for (int number = 0; number <= static_cast<int>(Quantity::DataRate); ++number) {
        const auto quantity = static_cast<Quantity>(number);
        const Unit& base = Unit::Base(quantity);
        EXPECT_EQ(base.quantity, quantity);
        EXPECT_EQ(base.factor, 1.0);
        EXPECT_TRUE(symbols.insert(base.symbol).second) << base.symbol;
        EXPECT_FALSE(EnglishName(quantity).empty());
        EXPECT_FALSE(ChineseName(quantity).empty());
    }
    EXPECT_EQ(Unit::Base(Quantity::Length).symbol, "mm");
    EXPECT_EQ(Unit::Base(Quantity::VolumeFlow).symbol, "m3/h");
    EXPECT_EQ(Unit::Base(Quantity::Pressure).symbol, "kPa");
    EXPECT_EQ(Unit::Base(Quantity::Power).symbol, "kW");
}

struct FactorRow
{
    const char* symbol;
    Quantity quantity;
    double factor;
};

class UnitFactor : public ::testing::TestWithParam<FactorRow>
{
};

TEST_P(UnitFactor, IsThatOfTheStandard)
{
    const Unit* const unit = Unit::Find(GetParam().symbol);
    ASSERT_NE(unit, nullptr) << GetParam().symbol;
    EXPECT_EQ(unit->quantity, GetParam().quantity) << GetParam().symbol;
    EXPECT_DOUBLE_EQ(unit->ToBase(1), GetParam().factor) << GetParam().symbol;
    EXPECT_DOUBLE_EQ(unit->FromBase(GetParam().factor), 1) << GetParam().symbol;
}

INSTANTIATE_TEST_SUITE_P(Units, UnitFactor,
    ::testing::Values(FactorRow{"m", Quantity::Length, 1000}, FactorRow{"in", Quantity::Length, 25.4},
        FactorRow{"ft", Quantity::Length, 304.8}, FactorRow{"µm", Quantity::Length, 0.001},
        FactorRow{"m²", Quantity::Area, 1e6}, FactorRow{"L", Quantity::Volume, 1e6},
        FactorRow{"m3", Quantity::Volume, 1e9}, FactorRow{"rad", Quantity::Angle, 57.295779513082321},
        FactorRow{"h", Quantity::Time, 3600}, FactorRow{"km/h", Quantity::Velocity, 1 / 3.6},
        FactorRow{"L/s", Quantity::VolumeFlow, 3.6}, FactorRow{"L/min", Quantity::VolumeFlow, 0.06},
        FactorRow{"kg/s", Quantity::MassFlow, 3600}, FactorRow{"g", Quantity::Mass, 0.001},
        FactorRow{"kN", Quantity::Force, 1000}, FactorRow{"bar", Quantity::Pressure, 100},
        FactorRow{"MPa", Quantity::Pressure, 1000}, FactorRow{"mH2O", Quantity::Pressure, 9.80665},
        FactorRow{"W", Quantity::Power, 0.001}, FactorRow{"kVA", Quantity::Power, 1},
        FactorRow{"MJ", Quantity::Energy, 1 / 3.6}, FactorRow{"mA", Quantity::Current, 0.001},
        FactorRow{"GHz", Quantity::Frequency, 1e9}, FactorRow{"r/min", Quantity::RotationalSpeed, 1},
        FactorRow{"Gbit/s", Quantity::DataRate, 1000}, FactorRow{"°C", Quantity::Temperature, 1},
        FactorRow{"%", Quantity::Plain, 1}, FactorRow{"", Quantity::Plain, 1}, FactorRow{"-", Quantity::Plain, 1}));

TEST(Unit, DoesNotKnowOthers)
{
    for (const char* const symbol : {"mn", "MM", "furlong", " mm", "mm ", "m/", "KW"}) {
        EXPECT_EQ(Unit::Find(symbol), nullptr) << symbol;
    }
}

} // namespace
} // namespace familyfiles
