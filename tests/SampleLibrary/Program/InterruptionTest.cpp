#include "support/BuilderProcess.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>

namespace {

constexpr int LimitMilliseconds = 5000;

QStringList Names(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// A build that takes long enough to be stopped in the middle.
class Interruption : public testing::Test
{
protected:
    void StartAndWaitForTheDatabase()
    {
        m_process.start(QStringLiteral(SAMPLE_LIBRARY_BUILDER),
            {m_folder, QStringLiteral("--components"), QStringLiteral("2000000"), QStringLiteral("--jobs"),
                QStringLiteral("1")});
        QElapsedTimer clock;
        clock.start();
        const QString database = m_folder + QStringLiteral(".growing/catalogue.db");
        while (QFileInfo(database).size() == 0) {
            ASSERT_LT(clock.elapsed(), 12 * LimitMilliseconds);
            QThread::msleep(5);
        }
    }

    void Stop(int signal)
    {
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
        ASSERT_TRUE(m_process.waitForFinished(LimitMilliseconds));
    }

    QTemporaryDir m_place;
    QString m_folder = m_place.filePath(QStringLiteral("library"));
    QProcess m_process;
};

TEST_F(Interruption, ByCtrlCLeavesNothingAndGives130)
{
    StartAndWaitForTheDatabase();
    Stop(SIGINT);
    EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_process.exitCode(), 130);
    EXPECT_EQ(
        m_process.readAllStandardError().toStdString(), "sample-library-builder: interrupted, nothing was changed\n");
    EXPECT_EQ(Names(m_place.path()), QStringList());
}

TEST_F(Interruption, BySigtermLeavesNothingAndGives143)
{
    StartAndWaitForTheDatabase();
    Stop(SIGTERM);
    EXPECT_EQ(m_process.exitCode(), 143);
    EXPECT_EQ(Names(m_place.path()), QStringList());
}

TEST_F(Interruption, LeavesTheOldLibraryAsItWas)
{
    ASSERT_EQ(
        RunBuilderProcess({m_folder, QStringLiteral("--components"), QStringLiteral("30"),
                              QStringLiteral("--end-categories"), QStringLiteral("20"), QStringLiteral("--quiet")})
            .ExitCode,
        0);
    const std::map<std::string, std::string> old = FileDigests(m_folder);
    StartAndWaitForTheDatabase();
    Stop(SIGINT);
    EXPECT_EQ(FileDigests(m_folder), old);
    EXPECT_EQ(Names(m_place.path()), QStringList{QStringLiteral("library")});
}

TEST_F(Interruption, ByKillIsNeverTakenForACompleteLibraryAndIsClearedByTheNextRun)
{
    StartAndWaitForTheDatabase();
    Stop(SIGKILL);
    EXPECT_FALSE(QFileInfo::exists(m_folder));
    EXPECT_FALSE(QFileInfo::exists(m_folder + QStringLiteral(".growing/library.json")));
    const BuilderRun run = RunBuilderProcess({m_folder, QStringLiteral("--components"), QStringLiteral("30"),
        QStringLiteral("--end-categories"), QStringLiteral("20"), QStringLiteral("--quiet")});
    EXPECT_EQ(run.ExitCode, 0) << run.Errors;
    EXPECT_EQ(Names(m_place.path()), QStringList{QStringLiteral("library")});
}

} // namespace
