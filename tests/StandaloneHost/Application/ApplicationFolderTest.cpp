#include "Application/ApplicationFolder.h"

#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <gtest/gtest.h>

using standalone::FindApplicationFolder;
using standalone::ResolvedSetting;

namespace {

const QString& ProgramFolder()
{
    static const QString folder = QStringLiteral("/opt/管 x/bin");
    return folder;
}

TEST(ApplicationFolder, IsTheGivenOneFirst)
{
    qputenv("NUQ_APP_DIR", "/from/variable");
    const ResolvedSetting folder = FindApplicationFolder(QStringLiteral("/given"), ProgramFolder());
    EXPECT_EQ(folder.value, QStringLiteral("/given"));
    EXPECT_EQ(folder.origin, ResolvedSetting::Origin::Option);
    EXPECT_EQ(folder.originText, QStringLiteral("option --app-dir"));
}

TEST(ApplicationFolder, IsThatOfTheVariableNext)
{
    qputenv("NUQ_APP_DIR", "/从/variable");
    const ResolvedSetting folder = FindApplicationFolder(QString(), ProgramFolder());
    EXPECT_EQ(folder.value, QStringLiteral("/从/variable"));
    EXPECT_EQ(folder.origin, ResolvedSetting::Origin::EnvironmentVariable);
    EXPECT_EQ(folder.originText, QStringLiteral("environment variable NUQ_APP_DIR"));
}

TEST(ApplicationFolder, IsTheShareFolderBesideTheProgramElse)
{
    for (const bool isSet : {true, false}) {
        isSet ? qputenv("NUQ_APP_DIR", "") : qunsetenv("NUQ_APP_DIR");
        const ResolvedSetting folder = FindApplicationFolder(QString(), ProgramFolder());
        EXPECT_EQ(folder.value, QStringLiteral("/opt/管 x/share/tarnnuq"));
        EXPECT_EQ(folder.origin, ResolvedSetting::Origin::Default);
        EXPECT_EQ(folder.originText, QStringLiteral("installed share folder"));
    }
}

TEST(ApplicationFolder, IsAbsoluteAndHasNoSlashAtItsEnd)
{
    const TestFolder current;
    ASSERT_TRUE(QDir::setCurrent(current.Path()));
    const QString here = QDir::currentPath();
    EXPECT_EQ(FindApplicationFolder(QStringLiteral("/a b/c//"), ProgramFolder()).value, QStringLiteral("/a b/c"));
    EXPECT_EQ(FindApplicationFolder(QStringLiteral("/a/./b/../c/"), ProgramFolder()).value, QStringLiteral("/a/c"));
    EXPECT_EQ(FindApplicationFolder(QStringLiteral("风管/x"), ProgramFolder()).value, here + QStringLiteral("/风管/x"));
    EXPECT_EQ(FindApplicationFolder(QStringLiteral("."), ProgramFolder()).value, here);
    EXPECT_EQ(FindApplicationFolder(QStringLiteral("/"), ProgramFolder()).value, QString());
    qputenv("NUQ_APP_DIR", "x/");
    EXPECT_EQ(FindApplicationFolder(QString(), ProgramFolder()).value, here + QStringLiteral("/x"));
}

} // namespace
