#include "support/BuilderProcess.h"
#include "support/BuiltLibrary.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <gtest/gtest.h>

namespace {

const QStringList Small{QStringLiteral("--components"), QStringLiteral("700"), QStringLiteral("--end-categories"),
    QStringLiteral("60"), QStringLiteral("--quiet")};

QStringList Arguments(const QString& folder, const QString& jobs)
{
    return QStringList{folder, QStringLiteral("--jobs"), jobs} + Small;
}

TEST(Determinism, SameBytesForOtherThreadsTimeZoneAndLocale)
{
    const QTemporaryDir place;
    QProcessEnvironment here = QProcessEnvironment::systemEnvironment();
    QProcessEnvironment there = here;
    there.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Shanghai"));
    there.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    there.insert(QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"));
    ASSERT_EQ(
        RunBuilderProcess(Arguments(place.filePath(QStringLiteral("one")), QStringLiteral("1")), here).ExitCode, 0);
    ASSERT_EQ(
        RunBuilderProcess(Arguments(place.filePath(QStringLiteral("other")), QStringLiteral("5")), there).ExitCode, 0);
    const std::map<std::string, std::string> one = FileDigests(place.filePath(QStringLiteral("one")));
    EXPECT_EQ(one, FileDigests(place.filePath(QStringLiteral("other"))));
    EXPECT_EQ(one.size(), 3U + 74U * (4U + 6U));
}

TEST(Determinism, AWholeLibraryComesOutAsTheBundledOne)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("again"));
    ASSERT_EQ(RunBuilderProcess({folder, QStringLiteral("--quiet")}).ExitCode, 0);
    EXPECT_EQ(FileDigests(folder), FileDigests(QStringLiteral(SAMPLE_LIBRARY_FOLDER)));
}

TEST(UpToDate, ASecondRunChangesNothingAndIsQuick)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("library"));
    ASSERT_EQ(RunBuilderProcess(Arguments(folder, QStringLiteral("2"))).ExitCode, 0);
    const QDateTime before = QFileInfo(folder + QStringLiteral("/catalogue.db")).lastModified();
    const auto start = std::chrono::steady_clock::now();
    const BuilderRun run = RunBuilderProcess(QStringList{folder} + Small.mid(0, 4));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(run.ExitCode, 0);
    EXPECT_EQ(run.Output, folder.toStdString() + " is up to date\n");
    EXPECT_EQ(QFileInfo(folder + QStringLiteral("/catalogue.db")).lastModified(), before);
}

TEST(UpToDate, OtherOptionsOrForceBuildAnew)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("library"));
    ASSERT_EQ(RunBuilderProcess(Arguments(folder, QStringLiteral("2"))).ExitCode, 0);
    BuilderRun run = RunBuilderProcess(QStringList{folder, QStringLiteral("--force")} + Small.mid(0, 4));
    EXPECT_EQ(run.Output.find("built "), 0U) << run.Output;
    run = RunBuilderProcess({folder, QStringLiteral("--components"), QStringLiteral("701"),
        QStringLiteral("--end-categories"), QStringLiteral("60")});
    EXPECT_EQ(run.Output.find("built "), 0U) << run.Output;
    EXPECT_EQ(BuiltLibrary(folder.toStdString()).Count("SELECT count(*) FROM component"), 701);
}

TEST(UpToDate, ALibraryWithoutOneOfItsDatabasesIsBuiltAnew)
{
    const QTemporaryDir place;
    const QString folder = place.filePath(QStringLiteral("library"));
    ASSERT_EQ(RunBuilderProcess(Arguments(folder, QStringLiteral("2"))).ExitCode, 0);
    const std::map<std::string, std::string> whole = FileDigests(folder);
    for (const char* name : {"/catalogue.db", "/components.db"}) {
        ASSERT_TRUE(QFile::remove(folder + QLatin1String(name)));
        ASSERT_EQ(RunBuilderProcess(Arguments(folder, QStringLiteral("2"))).ExitCode, 0);
        EXPECT_EQ(FileDigests(folder), whole) << name;
    }
}

} // namespace
