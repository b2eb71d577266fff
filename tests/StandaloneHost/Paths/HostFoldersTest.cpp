#include "Paths/HostFolders.h"

#include "support/PrintQt.h"
#include <gtest/gtest.h>

using standalone::HostFolders;

namespace {

void ClearXdg()
{
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        qunsetenv(variable);
    }
}

TEST(HostFolders, AreThoseOfTheVariablesWhenTheseAreAbsolute)
{
    qputenv("XDG_CONFIG_HOME", "/设置 a");
    qputenv("XDG_CACHE_HOME", "/b/");
    qputenv("XDG_DATA_HOME", "/c/../d");
    qputenv("XDG_STATE_HOME", "/e");
    const HostFolders folders = HostFolders::OfThePlatform();
    EXPECT_EQ(folders.config, QStringLiteral("/设置 a/tarnnuq"));
    EXPECT_EQ(folders.cache, QStringLiteral("/b/tarnnuq"));
    EXPECT_EQ(folders.data, QStringLiteral("/d/tarnnuq"));
    EXPECT_EQ(folders.state, QStringLiteral("/e/tarnnuq"));
}

void ExpectFoldersBelowHome(const QString& home)
{
    const HostFolders folders = HostFolders::OfThePlatform();
    EXPECT_EQ(folders.config, home + QStringLiteral("/.config/tarnnuq"));
    EXPECT_EQ(folders.cache, home + QStringLiteral("/.cache/tarnnuq"));
    EXPECT_EQ(folders.data, home + QStringLiteral("/.local/share/tarnnuq"));
    EXPECT_EQ(folders.state, home + QStringLiteral("/.local/state/tarnnuq"));
}

TEST(HostFolders, LieBelowHomeWithoutVariables)
{
    ClearXdg();
    qputenv("HOME", "/home/某人");
    ExpectFoldersBelowHome(QStringLiteral("/home/某人"));
}

TEST(HostFolders, IgnoreEmptyAndRelativeVariables)
{
    qputenv("HOME", "/home/x");
    qputenv("XDG_CONFIG_HOME", "");
    qputenv("XDG_CACHE_HOME", "relative/cache");
    qputenv("XDG_DATA_HOME", "./data");
    qputenv("XDG_STATE_HOME", "~/state");
    ExpectFoldersBelowHome(QStringLiteral("/home/x"));
}

TEST(HostFolders, AreNotBelowTheRootWhenHomeIsUnusable)
{
    ClearXdg();
    for (const char* home : {"", "relative"}) {
        qputenv("HOME", home);
        const QString config = HostFolders::OfThePlatform().config;
        EXPECT_TRUE(config.startsWith(QLatin1Char('/'))) << config.toStdString();
        EXPECT_TRUE(config.endsWith(QStringLiteral("/.config/tarnnuq"))) << config.toStdString();
        EXPECT_NE(config, QStringLiteral("/.config/tarnnuq"));
        EXPECT_FALSE(config.contains(QStringLiteral("relative"))) << config.toStdString();
    }
}

} // namespace
