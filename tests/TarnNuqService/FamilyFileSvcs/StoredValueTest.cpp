// The texts of values, in both directions, by table: every storage type at its limits.
#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"
#include "support/NamedCase.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace {

using testsupport::NamedCase;
using Doubles = std::numeric_limits<double>;

/// A specification's text and the value that it sets.
template <typename Value>
struct ReadCase : NamedCase
{
    std::wstring text;
    Value value;
};

/// A family's value and the text that the specification gets.
template <typename Value>
struct WriteCase : NamedCase
{
    Value value;
    std::wstring text;
};

template <typename Row>
class ValueTest : public testsupport::FamilyFileFixture, public ::testing::WithParamInterface<Row>
{
protected:
    const testsupport::RecordingParameter& Read(int storageType, const std::wstring& text)
    {
        family.Add("p", storageType);
        EXPECT_TRUE(Open()->TryUpdateGeometry(Specification({{L"P", L"p", text}})));
        return family.Asked("p");
    }

    std::wstring Written(int storageType, const std::function<void(testsupport::RecordingParameter&)>& set)
    {
        set(family.AddOutput("p", storageType));
        const auto specification = Specification({{L"P", L"p", L"old"}});
        bool changed = false;
        EXPECT_TRUE(Open()->UpdateDrivenParameters(specification, changed));
        EXPECT_TRUE(changed);
        return specification->Parameters[L"P"]->Value;
    }
};

using ReadYesNoTest = ValueTest<ReadCase<bool>>;
using ReadIntegerTest = ValueTest<ReadCase<int>>;
using ReadNumberTest = ValueTest<ReadCase<double>>;
using ReadTextTest = ValueTest<ReadCase<std::wstring>>;
using WriteYesNoTest = ValueTest<WriteCase<bool>>;
using WriteIntegerTest = ValueTest<WriteCase<int>>;
using WriteNumberTest = ValueTest<WriteCase<double>>;
using WriteTextTest = ValueTest<WriteCase<std::wstring>>;

constexpr int MinInt = -2147483647 - 1;

} // namespace

TEST_P(ReadYesNoTest, FollowsTheRule)
{
    EXPECT_EQ(Read(3, GetParam().text).yesNo, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadYesNoTest,
    ::testing::Values(ReadCase<bool>{{"True"}, L"true", true}, ReadCase<bool>{{"UpperCase"}, L"TRUE", true},
        ReadCase<bool>{{"MixedCase"}, L"tRuE", true}, ReadCase<bool>{{"BlanksAround"}, L"  TRUE\t\n", true},
        ReadCase<bool>{{"WideBlanksAround"}, L"\u3000true\u00A0", true}, ReadCase<bool>{{"One"}, L"1", true},
        ReadCase<bool>{{"MinusTwo"}, L"-2", true}, ReadCase<bool>{{"PlusOne"}, L"+1", true},
        ReadCase<bool>{{"LeadingZeros"}, L"007", true}, ReadCase<bool>{{"LargestInteger"}, L"2147483647", true},
        ReadCase<bool>{{"SmallestInteger"}, L"-2147483648", true}, ReadCase<bool>{{"BlanksAroundOne"}, L" 1 ", true},
        ReadCase<bool>{{"Zero"}, L"0", false}, ReadCase<bool>{{"MinusZero"}, L"-0", false},
        ReadCase<bool>{{"Empty"}, L"", false}, ReadCase<bool>{{"Blank"}, L" ", false},
        ReadCase<bool>{{"False"}, L"false", false}, ReadCase<bool>{{"Yes"}, L"yes", false},
        ReadCase<bool>{{"On"}, L"on", false}, ReadCase<bool>{{"Beginning"}, L"tru", false},
        ReadCase<bool>{{"Longer"}, L"true.", false}, ReadCase<bool>{{"BlankInside"}, L"tr ue", false},
        ReadCase<bool>{{"NulBehind"}, std::wstring(L"true\0", 5), false},
        ReadCase<bool>{{"FullWidthLetters"}, L"\uFF54\uFF52\uFF55\uFF45", false},
        ReadCase<bool>{{"IntegerBeyond32Bits"}, L"2147483648", false},
        ReadCase<bool>{{"OneBeyond32Bits"}, L"4294967297", false}, ReadCase<bool>{{"Fraction"}, L"1.0", false},
        ReadCase<bool>{{"Exponent"}, L"1e0", false}, ReadCase<bool>{{"Hexadecimal"}, L"0x1", false},
        ReadCase<bool>{{"Unit"}, L"1mm", false},
        // The word for yes stands in the rule in the bytes of another code page, so that it does not count ...
        ReadCase<bool>{{"WordForYes"}, L"\u662F", false},
        ReadCase<bool>{{"BytesOfTheWordAsLatin1"}, L"\u00CA\u00C7", false},
        ReadCase<bool>{{"BytesOfTheWordAsUtf8"}, L"\u0287", false},
        // ... and only what Qt reads those bytes as does.
        ReadCase<bool>{{"TwoReplacementCharacters"}, L"\uFFFD\uFFFD", true},
        ReadCase<bool>{{"OneReplacementCharacter"}, L"\uFFFD", false},
        ReadCase<bool>{{"MillionCharacters"}, std::wstring(1000000, L'1'), false}),
    testsupport::RowName());

TEST_P(ReadIntegerTest, FollowsTheRule)
{
    EXPECT_EQ(Read(4, GetParam().text).integer, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadIntegerTest,
    ::testing::Values(ReadCase<int>{{"Zero"}, L"0", 0}, ReadCase<int>{{"Positive"}, L"42", 42},
        ReadCase<int>{{"Negative"}, L"-42", -42}, ReadCase<int>{{"Plus"}, L"+42", 42},
        ReadCase<int>{{"LeadingZerosAreNotOctal"}, L"010", 10}, ReadCase<int>{{"BlanksAround"}, L" 42\t", 42},
        ReadCase<int>{{"Largest"}, L"2147483647", 2147483647}, ReadCase<int>{{"Smallest"}, L"-2147483648", MinInt},
        ReadCase<int>{{"OneTooLarge"}, L"2147483648", 0}, ReadCase<int>{{"OneTooSmall"}, L"-2147483649", 0},
        ReadCase<int>{{"Beyond32Bits"}, L"4294967338", 0}, ReadCase<int>{{"Beyond64Bits"}, L"18446744073709551658", 0},
        ReadCase<int>{{"Empty"}, L"", 0}, ReadCase<int>{{"Word"}, L"forty-two", 0},
        ReadCase<int>{{"WholeWithFraction"}, L"42.0", 0}, ReadCase<int>{{"Fraction"}, L"42.7", 0},
        ReadCase<int>{{"Exponent"}, L"1e2", 0}, ReadCase<int>{{"Hexadecimal"}, L"0x2A", 0},
        ReadCase<int>{{"HexadecimalDigits"}, L"2A", 0}, ReadCase<int>{{"GroupedDigits"}, L"1,000", 0},
        ReadCase<int>{{"BlankInside"}, L"4 2", 0}, ReadCase<int>{{"Unit"}, L"42 mm", 0},
        ReadCase<int>{{"TwoSigns"}, L"--42", 0}, ReadCase<int>{{"NulBehind"}, std::wstring(L"42\0", 3), 0},
        ReadCase<int>{{"True"}, L"true", 0}, ReadCase<int>{{"MillionDigits"}, std::wstring(1000000, L'1'), 0}),
    testsupport::RowName());

TEST_P(ReadNumberTest, FollowsTheRule)
{
    const double value = Read(5, GetParam().text).number;
    EXPECT_TRUE(value == GetParam().value || (std::isnan(value) && std::isnan(GetParam().value))) << value;
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadNumberTest,
    ::testing::Values(ReadCase<double>{{"Zero"}, L"0", 0}, ReadCase<double>{{"Whole"}, L"100", 100},
        ReadCase<double>{{"Fraction"}, L"2.5", 2.5}, ReadCase<double>{{"Negative"}, L"-0.25", -0.25},
        ReadCase<double>{{"Plus"}, L"+2.5", 2.5}, ReadCase<double>{{"NoWholePart"}, L".5", 0.5},
        ReadCase<double>{{"NoFraction"}, L"5.", 5}, ReadCase<double>{{"Exponent"}, L"1.5e3", 1500},
        ReadCase<double>{{"NegativeExponent"}, L"15E-1", 1.5}, ReadCase<double>{{"BlanksAround"}, L"\t 2.5 ", 2.5},
        ReadCase<double>{{"ManyDigits"}, L"0.1000000000000000055511151231257827", 0.1},
        ReadCase<double>{{"Largest"}, L"1.7976931348623157e308", Doubles::max()},
        ReadCase<double>{{"Smallest"}, L"4.9406564584124654e-324", Doubles::denorm_min()},
        ReadCase<double>{{"Empty"}, L"", 0}, ReadCase<double>{{"Blank"}, L" ", 0},
        ReadCase<double>{{"Word"}, L"wide", 0}, ReadCase<double>{{"DecimalComma"}, L"2,5", 0},
        ReadCase<double>{{"GroupedDigits"}, L"1,000.5", 0}, ReadCase<double>{{"Unit"}, L"2.5mm", 0},
        ReadCase<double>{{"BlankInside"}, L"2 5", 0}, ReadCase<double>{{"TwoPoints"}, L"2.5.0", 0},
        ReadCase<double>{{"OnlyASign"}, L"-", 0}, ReadCase<double>{{"OnlyAPoint"}, L".", 0},
        ReadCase<double>{{"Hexadecimal"}, L"0x10", 0}, ReadCase<double>{{"OpenExponent"}, L"1e", 0},
        ReadCase<double>{{"NulBehind"}, std::wstring(L"2.5\0", 4), 0}, ReadCase<double>{{"True"}, L"true", 0},
        // What is no number to calculate with is handed on all the same: refusing it is the host's affair.
        ReadCase<double>{{"Infinite"}, L"inf", Doubles::infinity()},
        ReadCase<double>{{"NegativeInfinite"}, L"-inf", -Doubles::infinity()},
        ReadCase<double>{{"NotANumber"}, L"nan", Doubles::quiet_NaN()},
        ReadCase<double>{{"MillionLetters"}, std::wstring(1000000, L'x'), 0}),
    testsupport::RowName());

TEST_P(ReadTextTest, TakesTheTextAsItIs)
{
    EXPECT_EQ(Read(6, GetParam().text).text, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadTextTest,
    ::testing::Values(ReadCase<std::wstring>{{"Plain"}, L"GG25", L"GG25"}, ReadCase<std::wstring>{{"Empty"}, L"", L""},
        ReadCase<std::wstring>{{"Blanks"}, L" \tX\n ", L" \tX\n "},
        ReadCase<std::wstring>{{"Chinese"}, L"\u94F8\u94C1", L"\u94F8\u94C1"},
        ReadCase<std::wstring>{{"BeyondTheBasicPlane"}, L"\U00020000", L"\U00020000"},
        ReadCase<std::wstring>{{"LoneSurrogate"}, std::wstring(1, wchar_t(0xD800)), std::wstring(1, wchar_t(0xD800))},
        ReadCase<std::wstring>{{"NulInside"}, std::wstring(L"a\0b", 3), std::wstring(L"a\0b", 3)},
        ReadCase<std::wstring>{{"MillionCharacters"}, std::wstring(1000000, L'x'), std::wstring(1000000, L'x')}),
    testsupport::RowName());

TEST_P(WriteYesNoTest, IsTheStoredText)
{
    EXPECT_EQ(Written(3, [](auto& parameter) { parameter.yesNo = GetParam().value; }), GetParam().text);
    EXPECT_EQ(GetParam().text, tarnnuq::IParameter::GetLogicStorageStr(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(Values, WriteYesNoTest,
    ::testing::Values(WriteCase<bool>{{"Yes"}, true, L"true"}, WriteCase<bool>{{"No"}, false, L"false"}),
    testsupport::RowName());

TEST_P(WriteIntegerTest, IsDecimal)
{
    EXPECT_EQ(Written(4, [](auto& parameter) { parameter.integer = GetParam().value; }), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, WriteIntegerTest,
    ::testing::Values(WriteCase<int>{{"Zero"}, 0, L"0"}, WriteCase<int>{{"Positive"}, 1000, L"1000"},
        WriteCase<int>{{"Negative"}, -42, L"-42"}, WriteCase<int>{{"Largest"}, 2147483647, L"2147483647"},
        WriteCase<int>{{"Smallest"}, MinInt, L"-2147483648"}),
    testsupport::RowName());

TEST_P(WriteNumberTest, HasSixDecimalsAtMostAndNoZerosBehind)
{
    EXPECT_EQ(Written(5, [](auto& parameter) { parameter.number = GetParam().value; }), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, WriteNumberTest,
    ::testing::Values(WriteCase<double>{{"Zero"}, 0.0, L"0"}, WriteCase<double>{{"NegativeZero"}, -0.0, L"0"},
        WriteCase<double>{{"Whole"}, 3.0, L"3"}, WriteCase<double>{{"WholeTen"}, 10, L"10"},
        WriteCase<double>{{"WholeHundred"}, 100, L"100"}, WriteCase<double>{{"WholeThousand"}, 1000, L"1000"},
        WriteCase<double>{{"MillionsAreNotGrouped"}, 1234567.5, L"1234567.5"},
        WriteCase<double>{{"OneDecimal"}, 2.5, L"2.5"}, WriteCase<double>{{"TwoDecimals"}, 12.34, L"12.34"},
        WriteCase<double>{{"ZeroInside"}, 10.01, L"10.01"}, WriteCase<double>{{"ZerosInside"}, 100.00105, L"100.00105"},
        WriteCase<double>{{"SixDecimals"}, 0.123456, L"0.123456"},
        WriteCase<double>{{"SevenDecimalsAreRounded"}, 0.1234567, L"0.123457"},
        WriteCase<double>{{"RoundedToFewer"}, 0.1999999999, L"0.2"},
        WriteCase<double>{{"RoundedToWhole"}, 9.9999999, L"10"},
        WriteCase<double>{{"RoundedToMoreDigits"}, 99.9999995, L"100"},
        WriteCase<double>{{"SmallestThatShows"}, 0.000001, L"0.000001"},
        WriteCase<double>{{"RoundedUpToShow"}, 0.0000006, L"0.000001"},
        WriteCase<double>{{"TooSmallToShow"}, 1e-7, L"0"},
        WriteCase<double>{{"TooSmallToShowAndNegative"}, -1e-7, L"-0"}, WriteCase<double>{{"Negative"}, -2.5, L"-2.5"},
        WriteCase<double>{{"NegativeWhole"}, -100, L"-100"},
        WriteCase<double>{{"NoExponent"}, 1e21, L"1000000000000000000000"},
        WriteCase<double>{{"BeyondItsPrecision"}, 1e23, L"99999999999999991611392"},
        WriteCase<double>{{"Tiny"}, Doubles::denorm_min(), L"0"},
        WriteCase<double>{{"Infinite"}, Doubles::infinity(), L"inf"},
        WriteCase<double>{{"NegativeInfinite"}, -Doubles::infinity(), L"-inf"},
        WriteCase<double>{{"NotANumber"}, Doubles::quiet_NaN(), L"nan"}),
    testsupport::RowName());

TEST_P(WriteNumberTest, IsTheSameInEveryLanguage)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Written(5, [](auto& parameter) { parameter.number = GetParam().value; }), GetParam().text);
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(Written(5, [](auto& parameter) { parameter.number = GetParam().value; }), GetParam().text);
}

TEST_P(WriteTextTest, IsTheOutputsText)
{
    EXPECT_EQ(Written(6, [](auto& parameter) { parameter.text = GetParam().value; }), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, WriteTextTest,
    ::testing::Values(WriteCase<std::wstring>{{"Plain"}, L"GG25", L"GG25"},
        WriteCase<std::wstring>{{"Empty"}, L"", L""},
        // The zeros that numbers lose are a text's own.
        WriteCase<std::wstring>{{"Zeros"}, L"1.500", L"1.500"}, WriteCase<std::wstring>{{"Blanks"}, L" x ", L" x "},
        WriteCase<std::wstring>{{"NulInside"}, std::wstring(L"a\0b", 3), std::wstring(L"a\0b", 3)},
        WriteCase<std::wstring>{{"MillionCharacters"}, std::wstring(1000000, L'x'), std::wstring(1000000, L'x')}),
    testsupport::RowName());
