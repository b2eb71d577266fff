#include "tarnnuq/UrlEncoder.h"

#include <gtest/gtest.h>
#include <ostream>

using tarnnuq::UrlEncoder;

namespace {

struct EncodeRow
{
    const char* name;
    QString text;
    const char* encoding;
    const char* expected;
};

std::ostream& operator<<(std::ostream& stream, const EncodeRow& row)
{
    return stream << row.name;
}

class UrlEncoding : public ::testing::TestWithParam<EncodeRow>
{
};

const EncodeRow Rows[] = {
    {"AnEmptyText", QString(), "utf-8", ""},
    {"LettersAndDigits", QStringLiteral("AZaz09"), "utf-8", "AZaz09"},
    {"TheOtherUnreservedCharacters", QStringLiteral("-_.~"), "utf-8", "-_.~"},
    {"ABlank", QStringLiteral("a b"), "utf-8", "a%20b"},
    {"APlusSign", QStringLiteral("a+b"), "utf-8", "a%2Bb"},
    {"GeneralDelimiters", QStringLiteral(":/?#[]@"), "utf-8", "%3A%2F%3F%23%5B%5D%40"},
    {"SubDelimiters", QStringLiteral("!$&'()*,;="), "utf-8", "%21%24%26%27%28%29%2A%2C%3B%3D"},
    {"APercentSign", QStringLiteral("100%20"), "utf-8", "100%2520"},
    {"APlaceMarker", QStringLiteral("%1"), "utf-8", "%251"},
    {"QuotesAndBackslash", QStringLiteral("\"<>\\^`{|}"), "utf-8", "%22%3C%3E%5C%5E%60%7B%7C%7D"},
    {"ControlCharacters", QString::fromUtf8("\0\x01\n\x7F", 4), "utf-8", "%00%01%0A%7F"},
    {"Chinese", QStringLiteral("风管"), "utf-8", "%E9%A3%8E%E7%AE%A1"},
    {"ACharacterBeyondTheBasicPlane", QStringLiteral("\U00020000"), "utf-8", "%F0%A0%80%80"},
    {"UpperCaseEncodingName", QStringLiteral("é"), "UTF-8", "%C3%A9"},
    {"MixedCaseEncodingName", QStringLiteral("é"), "Utf-8", "%C3%A9"},
    {"ANullEncodingAsUtf8", QStringLiteral("é"), nullptr, "%C3%A9"},
    {"AnEmptyEncodingAsUtf8", QStringLiteral("é"), "", "%C3%A9"},
    {"AnUnknownEncodingAsUtf8", QStringLiteral("é"), "no-such-encoding", "%C3%A9"},
    {"AnotherEncoding", QStringLiteral("é"), "ISO-8859-1", "%E9"},
    {"AnotherEncodingInLowerCase", QStringLiteral("风管"), "gbk", "%B7%E7%B9%DC"},
    {"WithoutAByteOrderMark", QStringLiteral("a"), "UTF-16BE", "%00a"},
    {"WithoutAByteOrderMarkInUtf8", QStringLiteral("\uFEFFa"), "utf-8", "%EF%BB%BFa"},
};

} // namespace

TEST_P(UrlEncoding, EncodesAsExpected)
{
    const EncodeRow& row = GetParam();
    EXPECT_EQ(UrlEncoder::Encode(row.text, row.encoding), QString::fromLatin1(row.expected));
}

INSTANTIATE_TEST_SUITE_P(
    Of, UrlEncoding, ::testing::ValuesIn(Rows), [](const auto& row) { return std::string(row.param.name); });

TEST(UrlEncodingOfUtf16, WritesNoByteOrderMark)
{
    EXPECT_EQ(UrlEncoder::Encode(QStringLiteral("ab"), "UTF-16").size(), QStringLiteral("%00a%00b").size());
}
