#include "Application/CurrentEnvironment.h"

#include "Settings/SettingsStore.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>

using standalone::CurrentEnvironment;
using standalone::ResolvedSetting;
using standalone::SettingsStore;

namespace {

class Environment : public testing::Test
{
protected:
    Environment() { qunsetenv("NUQ_ENVIRONMENT"); }

    TestFolder m_folder;
};

void ExpectEnvironment(
    const CurrentEnvironment& environment, const char* name, ResolvedSetting::Origin origin, const char* text)
{
    EXPECT_EQ(environment.GetCurrentEnv(), name);
    EXPECT_EQ(environment.Resolved().value, QString::fromUtf8(name));
    EXPECT_EQ(environment.Resolved().origin, origin);
    EXPECT_EQ(environment.Resolved().originText, QString::fromUtf8(text));
}

TEST_F(Environment, ComesFromTheOptionThenTheVariableThenTheSettings)
{
    using Origin = ResolvedSetting::Origin;
    const SettingsStore settings(m_folder.Write(QStringLiteral("s.json"), R"({"environment":"测试"})"));
    ExpectEnvironment(CurrentEnvironment(QString(), settings), "测试", Origin::Settings, "settings");
    qputenv("NUQ_ENVIRONMENT", "qa");
    ExpectEnvironment(CurrentEnvironment(QString(), settings), "qa", Origin::EnvironmentVariable,
        "environment variable NUQ_ENVIRONMENT");
    ExpectEnvironment(
        CurrentEnvironment(QStringLiteral("stage"), settings), "stage", Origin::Option, "option --environment");
}

TEST_F(Environment, IsProdElse)
{
    using Origin = ResolvedSetting::Origin;
    qputenv("NUQ_ENVIRONMENT", " ");
    for (const char* content : {"{}", R"({"environment":" "})", R"({"environment":5})"}) {
        const SettingsStore settings(m_folder.Write(QStringLiteral("s.json"), content));
        ExpectEnvironment(CurrentEnvironment(QStringLiteral(" "), settings), "prod", Origin::Default, "default");
    }
}

TEST_F(Environment, LosesBlanksButKeepsItsLetterCase)
{
    const SettingsStore settings(m_folder.Path(QStringLiteral("none.json")));
    EXPECT_EQ(CurrentEnvironment(QStringLiteral(" Qa "), settings).GetCurrentEnv(), "Qa");
}

TEST_F(Environment, IsQaInAnyLetterCase)
{
    const SettingsStore settings(m_folder.Path(QStringLiteral("none.json")));
    EXPECT_TRUE(CurrentEnvironment(QStringLiteral("qa"), settings).IsQa());
    EXPECT_TRUE(CurrentEnvironment(QStringLiteral("QA"), settings).IsQa());
    EXPECT_FALSE(CurrentEnvironment(QStringLiteral("qa2"), settings).IsQa());
    EXPECT_FALSE(CurrentEnvironment(QString(), settings).IsQa());
}

TEST_F(Environment, StaysAsChosen)
{
    const SettingsStore settings(m_folder.Path(QStringLiteral("none.json")));
    const CurrentEnvironment environment(QString(), settings);
    qputenv("NUQ_ENVIRONMENT", "qa");
    EXPECT_EQ(environment.GetCurrentEnv(), "prod");
}

} // namespace
