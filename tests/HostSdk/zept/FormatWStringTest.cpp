#include "zept/StringUtil.h"

#include <climits>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <vector>

using zept::StringUtil;

namespace {

struct FormatRow
{
    const char* name;
    std::wstring formatted;
    std::wstring expected;
};

std::ostream& operator<<(std::ostream& stream, const FormatRow& row)
{
    return stream << row.name;
}

template <typename... Arguments>
std::wstring Format(const wchar_t* format, Arguments... arguments)
{
    return StringUtil::FormatWString(format, arguments...);
}

std::vector<FormatRow> TextRows()
{
    const wchar_t unterminated[] = {L'a', L'b', L'c'};
    return {
        {"NoConversion", Format(L"风管 plain"), L"风管 plain"},
        {"EmptyFormat", Format(L""), L""},
        {"WideTextByS", Format(L"%s", L"风管"), L"风管"},
        {"WideTextByLs", Format(L"%ls", L"风管"), L"风管"},
        {"WideTextByUpperS", Format(L"%S", L"风管"), L"风管"},
        {"CharactersBeyondTheBasicPlane", Format(L"<%s>", L"\U00020000"), L"<\U00020000>"},
        {"NarrowTextByHs", Format(L"%hs", "\xE9\xA3\x8E"), L"风"},
        {"TwoTextsAndABackslash", Format(L"%s\\%s.png", L"C:\\2d", L"pipes\\valve"), L"C:\\2d\\pipes\\valve.png"},
        {"TextThatHoldsAConversion", Format(L"%s-%s", L"%s", L"%d"), L"%s-%d"},
        {"EmptyText", Format(L"[%s]", L""), L"[]"},
        {"NullText", Format(L"[%s]", static_cast<const wchar_t*>(nullptr)), L"[(null)]"},
        {"NullTextByUpperS", Format(L"[%S]", static_cast<const wchar_t*>(nullptr)), L"[(null)]"},
        {"NullNarrowText", Format(L"[%hs]", static_cast<const char*>(nullptr)), L"[(null)]"},
        {"TextToTheRight", Format(L"[%5s]", L"风管"), L"[   风管]"},
        {"TextToTheLeft", Format(L"[%-5s]", L"风管"), L"[风管   ]"},
        {"TextWiderThanItsField", Format(L"[%2s]", L"abc"), L"[abc]"},
        {"TextCutByPrecision", Format(L"[%.2s]", L"风管件"), L"[风管]"},
        {"TextCutToNothing", Format(L"[%.0s][%.s]", L"abc", L"abc"), L"[][]"},
        {"TextCutAndPadded", Format(L"[%4.1s]", L"abc"), L"[   a]"},
        {"TextWithoutNulCutByPrecision", Format(L"%.3s", static_cast<const wchar_t*>(unterminated)), L"abc"},
        {"TextShorterThanPrecision", Format(L"[%.9s]", L"abc"), L"[abc]"},
        {"TextNeverPaddedWithZeros", Format(L"[%05s]", L"ab"), L"[   ab]"},
        {"NarrowTextCutInBytes", Format(L"[%.3hs]", "\xE9\xA3\x8Exyz"), L"[风]"},
        {"WidthFromArgument", Format(L"[%*s]", 4, L"ab"), L"[  ab]"},
        {"NegativeWidthFromArgument", Format(L"[%*s]", -4, L"ab"), L"[ab  ]"},
        {"PrecisionFromArgument", Format(L"[%.*s]", 1, L"ab"), L"[a]"},
        {"NegativePrecisionFromArgument", Format(L"[%.*s]", -1, L"ab"), L"[ab]"},
        {"WidthAndPrecisionFromArguments", Format(L"[%*.*s]", 3, 1, L"ab"), L"[  a]"},
        {"Character", Format(L"%c%c", L'风', 'a'), L"风a"},
        {"CharacterByLcAndUpperC", Format(L"%lc%C", L'风', L'管'), L"风管"},
        {"CharacterPadded", Format(L"[%3c][%-3c]", L'x', L'y'), L"[  x][y  ]"},
        {"NulCharacter", Format(L"a%cb", 0), std::wstring(L"a\0b", 3)},
        {"PercentSign", Format(L"100%%"), L"100%"},
    };
}

std::vector<FormatRow> IntegerRows()
{
    return {
        {"SignedByD", Format(L"%d", -42), L"-42"},
        {"SignedByI", Format(L"%i", 42), L"42"},
        {"SmallestInt", Format(L"%d", INT_MIN), L"-2147483648"},
        {"Long", Format(L"%ld", -7L), L"-7"},
        {"LongLong", Format(L"%lld", LLONG_MIN), L"-9223372036854775808"},
        {"UnsignedLongLong", Format(L"%llu", ULLONG_MAX), L"18446744073709551615"},
        {"UnsignedLong", Format(L"%lu", 7UL), L"7"},
        {"Unsigned", Format(L"%u", UINT_MAX), L"4294967295"},
        {"Size", Format(L"%zu", std::numeric_limits<std::size_t>::max()),
            std::to_wstring(std::numeric_limits<std::size_t>::max())},
        {"SignedSize", Format(L"%zd", static_cast<std::ptrdiff_t>(-5)), L"-5"},
        {"PointerDifference", Format(L"%td", static_cast<std::ptrdiff_t>(-6)), L"-6"},
        {"UnsignedPointerDifference", Format(L"%tu", static_cast<std::size_t>(6)), L"6"},
        {"WidestSigned", Format(L"%jd", std::numeric_limits<std::intmax_t>::min()), L"-9223372036854775808"},
        {"WidestUnsigned", Format(L"%ju", std::numeric_limits<std::uintmax_t>::max()), L"18446744073709551615"},
        {"CharSized", Format(L"%hhd %hhu", 0x1FF, 0x1FF), L"-1 255"},
        {"ShortSized", Format(L"%hd %hu", 0x1FFFF, 0x1FFFF), L"-1 65535"},
        {"HexadecimalInBothCases", Format(L"%x %X", 0xBEEFu, 0xBEEFu), L"beef BEEF"},
        {"Octal", Format(L"%o", 8u), L"10"},
        {"AlternativeForms", Format(L"%#x %#X %#o", 255u, 255u, 8u), L"0xff 0XFF 010"},
        {"WidthFillsWithBlanks", Format(L"[%5d]", 42), L"[   42]"},
        {"WidthFillsWithZeros", Format(L"[%05d]", -42), L"[-0042]"},
        {"WidthToTheLeft", Format(L"[%-5d]", 42), L"[42   ]"},
        {"LeftBeatsZeros", Format(L"[%-05d]", 42), L"[42   ]"},
        {"PlusSign", Format(L"%+d %+d", 1, -1), L"+1 -1"},
        {"BlankForPlus", Format(L"% d", 1), L" 1"},
        {"PrecisionIsDigits", Format(L"[%.4d]", 42), L"[0042]"},
        {"PrecisionBeatsZeros", Format(L"[%06.3d]", 42), L"[   042]"},
        {"ZeroWithZeroPrecision", Format(L"[%.0d]", 0), L"[]"},
        {"IntegerWidthFromArgument", Format(L"[%*d][%-*d]", 4, 1, 4, 2), L"[   1][2   ]"},
        {"IntegerNegativeWidthFromArgument", Format(L"[%*d]", -4, 1), L"[1   ]"},
    };
}

std::vector<FormatRow> FloatRows()
{
    return {
        {"Fixed", Format(L"%f", 1.5), L"1.500000"},
        {"FixedWithPrecision", Format(L"%.2f", 3.14159), L"3.14"},
        {"FixedRoundedToWhole", Format(L"%.0f", 2.6), L"3"},
        {"FixedWithPoint", Format(L"%#.0f", 3.0), L"3."},
        {"FixedByLongF", Format(L"%lf", 0.25), L"0.250000"},
        {"Exponent", Format(L"%e %.1E", 12345.0, 0.5), L"1.234500e+04 5.0E-01"},
        {"General", Format(L"%g %g %G", 0.0001, 1e10, 1e-10), L"0.0001 1e+10 1E-10"},
        {"LongDouble", Format(L"%.3Lf", 0.125L), L"0.125"},
        {"Hexadecimal", Format(L"%a", 1.0), L"0x1p+0"},
        {"WidthAndZeros", Format(L"[%08.2f]", -3.14159), L"[-0003.14]"},
        {"WidthToTheLeft", Format(L"[%-8.2f]", 3.14159), L"[3.14    ]"},
        {"Infinity",
            Format(L"%f %F", -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()),
            L"-inf INF"},
        {"LargestDouble", Format(L"%.0f", std::numeric_limits<double>::max()).substr(0, 10), L"1797693134"},
    };
}

std::vector<FormatRow> OddRows()
{
    return {
        {"UnknownLetterIsCopied", Format(L"a%yb %d", 5), L"a%yb 5"},
        {"UnknownWithFlagsIsCopied", Format(L"%-5.2y|%d", 5), L"%-5.2y|5"},
        {"UnknownWithStarTakesNoArgument", Format(L"%*y|%d", 5), L"%*y|5"},
        {"CountWriterIsCopied", Format(L"%n|%d", 5), L"%n|5"},
        {"LoneSignAtTheEnd", Format(L"100%"), L"100%"},
        {"CutOffAtTheEnd", Format(L"%-5.2l"), L"%-5.2l"},
        {"NonAsciiLetterIsCopied", Format(L"%风 %d", 5), L"%风 5"},
        {"WrongLengthIsCopied", Format(L"%Ld|%hf|%d", 5), L"%Ld|%hf|5"},
        {"DecoratedPercentSignIsCopied", Format(L"%5%"), L"%5%"},
        {"WidthBeyondIntIsCopied", Format(L"%99999999999d|%d", 5), L"%99999999999d|5"},
        {"PrecisionBeyondIntIsCopied", Format(L"%.2147483648d|%d", 5), L"%.2147483648d|5"},
        {"ConversionRightAfterAnUnknownOne", Format(L"%y%d", 5), L"%y5"},
        {"MixedArgumentsInOrder", Format(L"%s %d %.1f %c %x", L"风", 1, 2.5, L'x', 255u), L"风 1 2.5 x ff"},
    };
}

class WideFormat : public ::testing::TestWithParam<FormatRow>
{
};

std::string NameOf(const ::testing::TestParamInfo<FormatRow>& info)
{
    return info.param.name;
}

} // namespace

TEST_P(WideFormat, WritesWhatPrintfWouldInWideText)
{
    EXPECT_EQ(GetParam().formatted, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(OfTexts, WideFormat, ::testing::ValuesIn(TextRows()), NameOf);
INSTANTIATE_TEST_SUITE_P(OfIntegers, WideFormat, ::testing::ValuesIn(IntegerRows()), NameOf);
INSTANTIATE_TEST_SUITE_P(OfFloats, WideFormat, ::testing::ValuesIn(FloatRows()), NameOf);
INSTANTIATE_TEST_SUITE_P(OfOddities, WideFormat, ::testing::ValuesIn(OddRows()), NameOf);

TEST(AWideFormat, ThatIsNullGivesAnEmptyText)
{
    EXPECT_EQ(StringUtil::FormatWString(nullptr), L"");
}

TEST(AWideFormat, HasNoLengthLimit)
{
    const std::wstring text(1000000, L'风');
    EXPECT_EQ(StringUtil::FormatWString(L"<%s>", text.c_str()), L"<" + text + L">");
    EXPECT_EQ(StringUtil::FormatWString(L"%100000d", 7), std::wstring(99999, L' ') + L"7");
}

TEST(AWideFormat, TakesPointers)
{
    const void* const pointer = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(0xBEEF));
    EXPECT_EQ(StringUtil::FormatWString(L"%p", pointer), L"0xbeef");
    EXPECT_EQ(StringUtil::FormatWString(L"[%8p]", pointer), L"[  0xbeef]");
    EXPECT_EQ(StringUtil::FormatWString(L"%p", static_cast<const void*>(nullptr)), L"0x0");
}

TEST(AWideFormat, TakesMoreArgumentsThanFitIntoRegisters)
{
    EXPECT_EQ(StringUtil::FormatWString(L"%d%d%d%d%d%d%d%d%d%d %.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f%.0f %s", 0, 1, 2, 3, 4,
                  5, 6, 7, 8, 9, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, L"end"),
        L"0123456789 123456789 end");
}
