#include "Application/MajorText.h"

#include <gtest/gtest.h>

using standalone::MajorFromText;

namespace {

TEST(MajorText, NamesEachMajor)
{
    EXPECT_EQ(MajorFromText(QStringLiteral("none")), tarnnuq::None);
    EXPECT_EQ(MajorFromText(QStringLiteral("plumbing")), tarnnuq::Plumbing);
    EXPECT_EQ(MajorFromText(QStringLiteral(" HVAC ")), tarnnuq::Hvac);
    EXPECT_EQ(MajorFromText(QStringLiteral("Electrical")), tarnnuq::Electrical);
}

TEST(MajorText, IsNothingForAnythingElse)
{
    EXPECT_EQ(MajorFromText(QString()), std::nullopt);
    EXPECT_EQ(MajorFromText(QStringLiteral("1")), std::nullopt);
    EXPECT_EQ(MajorFromText(QStringLiteral("all")), std::nullopt);
}

} // namespace
