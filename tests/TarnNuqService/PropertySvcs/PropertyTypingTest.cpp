#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "support/NamedCase.h"

using testsupport::DebugWarning;
using testsupport::FakePropertyInfo;

namespace {

constexpr const char* Function = "tarnnuq::GetStorageTypeAndDispTypeFromPropertyInfo";
constexpr const wchar_t* BadStorage = L"eStorageType 不合法";
constexpr const wchar_t* BadDisplay = L"ParameterDisplayType 不合法";

DebugWarning TypingWarning(const wchar_t* message)
{
    return testsupport::WarningOf("PropertySvcs/PropertyTyping.cpp", Function, message);
}

/// The three words of one property.
struct Words
{
    std::wstring valueType = L"before";
    std::wstring parameterType = L"before";
    std::wstring displayType = L"before";

    void ReadFrom(const tarn::ITarnPropertyInfo* info)
    {
        tarnnuq::GetStorageTypeAndDispTypeFromPropertyInfo(info, valueType, parameterType, displayType);
    }
};

class PropertyTypingTest : public ::testing::Test
{
protected:
    /// The words of a property with value texts or without.
    Words WordsOf(int storageType, int displayType, bool hasValueTexts = false)
    {
        FakePropertyInfo info;
        info.storageType = static_cast<std::int16_t>(storageType);
        info.displayType = static_cast<std::int16_t>(displayType);
        if (hasValueTexts) {
            info.valueTexts[1] = L"one";
        }
        Words words;
        words.ReadFrom(&info);
        return words;
    }

    testsupport::RecordingHost host;
};

struct StorageCase : testsupport::NamedCase
{
    int number;
    std::wstring valueType;
    std::wstring parameterType;
};

class StorageTypeTest : public PropertyTypingTest, public ::testing::WithParamInterface<StorageCase>
{
};

struct DisplayCase : testsupport::NamedCase
{
    int number;
    std::wstring displayType;
};

class DisplayTypeTest : public PropertyTypingTest, public ::testing::WithParamInterface<DisplayCase>
{
};

class UnknownNumberTest : public PropertyTypingTest, public ::testing::WithParamInterface<int>
{
};

} // namespace

TEST_P(StorageTypeTest, HasItsWords)
{
    const Words words = WordsOf(GetParam().number, 4);
    EXPECT_EQ(words.valueType, GetParam().valueType);
    EXPECT_EQ(words.parameterType, GetParam().parameterType);
    EXPECT_EQ(words.displayType, L"Length");
    testsupport::ExpectWarnings(host, {});
}

TEST_P(StorageTypeTest, IsAnEnumWithValueTextsWhenItIsAnInteger)
{
    const Words words = WordsOf(GetParam().number, 4, true);
    EXPECT_EQ(words.valueType, GetParam().number == 4 ? L"Enum" : GetParam().valueType);
    EXPECT_EQ(words.parameterType, GetParam().parameterType);
}

INSTANTIATE_TEST_SUITE_P(Numbers, StorageTypeTest,
    ::testing::Values(StorageCase{{"Invalid"}, 0, L"String", L"Invalid"}, StorageCase{{"None"}, 1, L"String", L"None"},
        StorageCase{{"Custom"}, 2, L"String", L"Custom"}, StorageCase{{"Bool"}, 3, L"Logic", L"Bool"},
        StorageCase{{"Int"}, 4, L"Number", L"Int"}, StorageCase{{"Double"}, 5, L"Number", L"Double"},
        StorageCase{{"String"}, 6, L"String", L"String"}, StorageCase{{"Coordinates"}, 7, L"String", L"Coordinates"},
        StorageCase{{"ElementId"}, 8, L"String", L"ElementId"},
        StorageCase{{"BuildingStorey"}, 9, L"String", L"BuildingStorey"},
        StorageCase{{"Color"}, 10, L"String", L"Color"},
        StorageCase{{"StandardCodeReference"}, 11, L"String", L"StandardCodeReference"},
        StorageCase{{"Geometry"}, 12, L"String", L"Geometry"}, StorageCase{{"Guid"}, 13, L"String", L"Guid"},
        StorageCase{{"Count"}, 14, L"String", L"Count"}),
    testsupport::RowName());

TEST_P(DisplayTypeTest, HasItsWord)
{
    const Words words = WordsOf(5, GetParam().number);
    EXPECT_EQ(words.valueType, L"Number");
    EXPECT_EQ(words.parameterType, L"Double");
    EXPECT_EQ(words.displayType, GetParam().displayType);
    testsupport::ExpectWarnings(host, {});
}

INSTANTIATE_TEST_SUITE_P(Numbers, DisplayTypeTest,
    ::testing::Values(DisplayCase{{"Invalid"}, 0, L"Invalid"}, DisplayCase{{"FollowUnitType"}, 1, L"FollowUnitType"},
        DisplayCase{{"NoDisplay"}, 2, L"NoDisplay"}, DisplayCase{{"Custom"}, 3, L"Custom"},
        DisplayCase{{"Length"}, 4, L"Length"}, DisplayCase{{"Area"}, 5, L"Area"}, DisplayCase{{"Volume"}, 6, L"Volume"},
        DisplayCase{{"Angle"}, 7, L"Angle"}, DisplayCase{{"Slope"}, 8, L"Slope"}, DisplayCase{{"Number"}, 9, L"Number"},
        DisplayCase{{"Text"}, 10, L"Text"}, DisplayCase{{"Geometry"}, 11, L"Geometry"},
        DisplayCase{{"Density"}, 12, L"Density"}, DisplayCase{{"YesOrNo"}, 13, L"YesOrNo"},
        DisplayCase{{"Float"}, 14, L"Float"}, DisplayCase{{"Material"}, 15, L"Material"},
        DisplayCase{{"ValueList"}, 16, L"ValueList"},
        DisplayCase{{"StandardCodeReference"}, 17, L"StandardCodeReference"}, DisplayCase{{"Count"}, 19, L"Count"}),
    testsupport::RowName());

TEST_P(UnknownNumberTest, OfStorageIsATextAndAWarning)
{
    const int number = GetParam() == 18 ? 15 : GetParam();
    const Words words = WordsOf(number, 4, true);
    EXPECT_EQ(words.valueType, L"String");
    EXPECT_EQ(words.parameterType, L"String");
    EXPECT_EQ(words.displayType, L"Length");
    testsupport::ExpectWarnings(host, {TypingWarning(BadStorage)});
}

TEST_P(UnknownNumberTest, OfDisplayIsATextAndAWarning)
{
    const Words words = WordsOf(3, GetParam());
    EXPECT_EQ(words.valueType, L"Logic");
    EXPECT_EQ(words.parameterType, L"Bool");
    EXPECT_EQ(words.displayType, L"Text");
    testsupport::ExpectWarnings(host, {TypingWarning(BadDisplay)});
}

INSTANTIATE_TEST_SUITE_P(Numbers, UnknownNumberTest, ::testing::Values(18, 20, 21, 255, 256, 32767, -1, -2, -32768));

TEST_F(PropertyTypingTest, BothNumbersUnknownGiveTwoWarningsStorageFirst)
{
    const Words words = WordsOf(99, 18);
    EXPECT_EQ(words.valueType, L"String");
    EXPECT_EQ(words.parameterType, L"String");
    EXPECT_EQ(words.displayType, L"Text");
    testsupport::ExpectWarnings(host, {TypingWarning(BadStorage), TypingWarning(BadDisplay)});
}

TEST_F(PropertyTypingTest, ANullPropertyLeavesTheTextsAsTheyAre)
{
    Words words;
    words.ReadFrom(nullptr);
    EXPECT_EQ(words.valueType, L"before");
    EXPECT_EQ(words.parameterType, L"before");
    EXPECT_EQ(words.displayType, L"before");
    testsupport::ExpectWarnings(host, {TypingWarning(L"pPropInfo 为空")});
}

TEST_F(PropertyTypingTest, AnIntegerWithValueIdsAloneIsANumber)
{
    FakePropertyInfo info;
    info.storageType = 4;
    info.valueIds[L"a"] = 1;
    Words words;
    words.ReadFrom(&info);
    EXPECT_EQ(words.valueType, L"Number");
}

TEST_F(PropertyTypingTest, WorksWithoutAHost)
{
    hostsdk::Install({});
    EXPECT_EQ(WordsOf(-1, -1).displayType, L"Text");
    Words words;
    words.ReadFrom(nullptr);
    EXPECT_EQ(words.displayType, L"before");
}
