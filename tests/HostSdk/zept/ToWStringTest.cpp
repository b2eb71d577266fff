#include "zept/StringUtil.h"

#include <gtest/gtest.h>

using zept::StringUtil;

TEST(WideText, OfAnEmptyTextIsEmpty)
{
    EXPECT_EQ(StringUtil::ToWString(std::string()), std::wstring());
}

TEST(WideText, OfAsciiIsTheSame)
{
    EXPECT_EQ(StringUtil::ToWString("qa Prod-1"), L"qa Prod-1");
}

TEST(WideText, OfTwoAndThreeByteCharactersIsDecoded)
{
    EXPECT_EQ(StringUtil::ToWString("\xC3\xA9 \xE9\xA3\x8E\xE7\xAE\xA1"), L"é 风管");
}

TEST(WideText, OfFourByteCharactersIsDecoded)
{
    EXPECT_EQ(StringUtil::ToWString("\xF0\xA0\x80\x80"), L"\U00020000");
    EXPECT_EQ(StringUtil::ToWString("\xF4\x8F\xBF\xBF"), L"\U0010FFFF");
}

TEST(WideText, KeepsNulCharacters)
{
    EXPECT_EQ(StringUtil::ToWString(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(WideText, DropsALeadingByteOrderMarkAlone)
{
    EXPECT_EQ(StringUtil::ToWString("\xEF\xBB\xBFqa\xEF\xBB\xBF"), L"qa\uFEFF");
}

TEST(WideText, ReplacesAByteThatIsNeverValid)
{
    EXPECT_EQ(StringUtil::ToWString("a\xFF"
                                    "b"),
        L"a\uFFFDb");
}

TEST(WideText, ReplacesACharacterThatIsCutOff)
{
    const std::wstring text = StringUtil::ToWString("a\xE9\xA3");
    EXPECT_EQ(text.substr(0, 2), L"a\uFFFD");
    EXPECT_EQ(text.find_first_not_of(L'\uFFFD', 1), std::wstring::npos);
}

TEST(WideText, ReplacesAnOverlongFormInsteadOfDecodingIt)
{
    EXPECT_EQ(StringUtil::ToWString("\xC0\xAF").find(L'/'), std::wstring::npos);
    EXPECT_EQ(StringUtil::ToWString("\xC0\xAF").front(), L'\uFFFD');
}

TEST(WideText, ReplacesAnEncodedSurrogate)
{
    const std::wstring text = StringUtil::ToWString("\xED\xA0\x80z");
    EXPECT_EQ(text.front(), L'\uFFFD');
    EXPECT_EQ(text.back(), L'z');
    EXPECT_EQ(text.find(static_cast<wchar_t>(0xD800)), std::wstring::npos);
}

TEST(WideText, OfALongTextIsComplete)
{
    std::string narrow;
    std::wstring wide;
    for (int i = 0; i < 100000; ++i) {
        narrow += "\xE9\xA3\x8E";
        wide += L'风';
    }
    EXPECT_EQ(StringUtil::ToWString(narrow), wide);
}
