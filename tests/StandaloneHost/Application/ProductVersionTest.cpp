#include "Application/ProductVersion.h"

#include "support/PrintQt.h"
#include <gtest/gtest.h>

using standalone::FormatVersion;

namespace {

QString Formatted(const char* format)
{
    return FormatVersion(QStringLiteral("1.4.2"), QString::fromUtf8(format));
}

TEST(ProductVersion, IsThatOfTheProject)
{
    EXPECT_EQ(standalone::ProductVersion(), QStringLiteral(PROJECT_VERSION));
}

TEST(ProductVersion, HasAsManyFieldsAsTheFormat)
{
    EXPECT_EQ(Formatted("0"), QStringLiteral("1"));
    EXPECT_EQ(Formatted("0.0"), QStringLiteral("1.4"));
    EXPECT_EQ(Formatted("0.0.0"), QStringLiteral("1.4.2"));
    EXPECT_EQ(Formatted("0.0.0.0"), QStringLiteral("1.4.2.0"));
    EXPECT_EQ(FormatVersion(QStringLiteral("0.1.0"), QStringLiteral("0.0")), QStringLiteral("0.1"));
}

TEST(ProductVersion, HasAsManyDigitsAsTheFormatAtLeast)
{
    EXPECT_EQ(Formatted("00.000"), QStringLiteral("01.004"));
    EXPECT_EQ(FormatVersion(QStringLiteral("12.345"), QStringLiteral("0.0")), QStringLiteral("12.345"));
}

TEST(ProductVersion, KeepsWhatStandsBetweenTheFields)
{
    EXPECT_EQ(Formatted("v9_9-版"), QStringLiteral("v1_4-版"));
}

TEST(ProductVersion, IsWholeWithoutFields)
{
    EXPECT_EQ(Formatted(""), QStringLiteral("1.4.2"));
    EXPECT_EQ(Formatted("x.y"), QStringLiteral("1.4.2"));
}

} // namespace
