#include "Logging/LogLevel.h"

#include "support/PrintQt.h"
#include <gtest/gtest.h>

using standalone::LogLevel;
using standalone::LogLevelFromText;
using standalone::LogLevelText;

namespace {

TEST(LogLevel, IsReadFromItsName)
{
    EXPECT_EQ(LogLevelFromText(QStringLiteral("trace")), LogLevel::Trace);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("debug")), LogLevel::Debug);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("info")), LogLevel::Info);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("warning")), LogLevel::Warning);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("warn")), LogLevel::Warning);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("error")), LogLevel::Error);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("off")), LogLevel::Off);
    EXPECT_EQ(LogLevelFromText(QStringLiteral(" Debug\n")), LogLevel::Debug);
}

TEST(LogLevel, IsNothingForAnythingElse)
{
    EXPECT_EQ(LogLevelFromText(QString()), std::nullopt);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("verbose")), std::nullopt);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("2")), std::nullopt);
    EXPECT_EQ(LogLevelFromText(QStringLiteral("infos")), std::nullopt);
}

TEST(LogLevel, NameIsReadBackAsTheSameLevel)
{
    for (const LogLevel level :
        {LogLevel::Trace, LogLevel::Debug, LogLevel::Info, LogLevel::Warning, LogLevel::Error, LogLevel::Off}) {
        EXPECT_EQ(LogLevelFromText(LogLevelText(level)), level);
    }
}

} // namespace
