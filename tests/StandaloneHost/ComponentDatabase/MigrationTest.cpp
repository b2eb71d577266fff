#include "ComponentDatabase/Schema/Migration.h"

#include "ComponentDatabase/Reading/SqlComponentDatabase.h"
#include "ComponentDatabase/SmallDatabase.h"
#include "ComponentDatabase/Sql/Statement.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace componentdatabase;

namespace {

class Migration : public testing::Test
{
protected:
    /// An older file with components, as the version before the search tables had left it.
    void WriteOld(int components)
    {
        WriteSmallDatabase(m_path, ManyComponents(components));
        const Connection connection(m_path, Connection::Access::ReadWrite, 0);
        connection.Run(QStringLiteral("DROP TABLE search"));
        connection.Run(QStringLiteral("DROP TABLE search_entry"));
        connection.Run(QStringLiteral("PRAGMA user_version = 2"));
        connection.Run(QStringLiteral("VACUUM"));
    }

    /// What a search finds in the file as it is opened by a program.
    qint64 Found() const
    {
        DatabaseReason reason;
        const auto database = SqlComponentDatabase::Open(m_path, reason);
        EXPECT_NE(database, nullptr) << reason.english.toStdString();
        return database == nullptr ? -1 : database->Search(QStringLiteral("闸阀"), 5, reason).total;
    }

    /// Starts a process that brings the file up to date.
    pid_t StartMigrating() const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            DatabaseReason reason;
            const bool isDone = OpenForReading(m_path, reason, 20000).connection != nullptr;
            ::_exit(isDone ? 0 : 1);
        }
        return child;
    }

    TestFolder m_folder;
    QString m_path = m_folder.Path(QStringLiteral("data.db"));
};

TEST_F(Migration, FromEveryVersionGivesTheTablesOfANewFile)
{
    WriteSmallDatabase(m_path);
    const auto schemaOf = [](const Connection& connection) {
        return connection.Text(
            QStringLiteral("SELECT group_concat(sql, ';') FROM (SELECT sql FROM sqlite_schema ORDER BY type, name)"));
    };
    const QString wanted = schemaOf(Connection(m_path, Connection::Access::ReadOnly, 0));
    for (int version = 1; version <= LatestVersion(); ++version) {
        const QString path = m_folder.Path(QStringLiteral("from-%1.db").arg(version));
        const Connection connection(path, Connection::Access::Create, 0);
        Migrate(connection, version);
        EXPECT_EQ(VersionOf(connection), version);
        Migrate(connection);
        EXPECT_EQ(VersionOf(connection), LatestVersion());
        EXPECT_EQ(schemaOf(connection), wanted);
    }
}

TEST_F(Migration, HappensWhenAnOlderFileIsOpened)
{
    WriteOld(30);
    EXPECT_EQ(Found(), 31);
    EXPECT_EQ(VersionOf(Connection(m_path, Connection::Access::ReadOnly, 0)), LatestVersion());
    EXPECT_EQ(m_folder.Files(), QStringList{QStringLiteral("data.db")});
}

TEST_F(Migration, KilledAtAnyMomentLeavesAFileThatTheNextStartCompletes)
{
    constexpr int Kills = 200;
    WriteOld(60);
    const QByteArray old = m_folder.Read(QStringLiteral("data.db"));
    QElapsedTimer timer;
    timer.start();
    int status = 0;
    ::waitpid(StartMigrating(), &status, 0);
    ASSERT_EQ(status, 0);
    const auto duration = static_cast<unsigned>(timer.nsecsElapsed() / 1000);
    std::mt19937 random(11);
    int killed = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        QFile::remove(m_path + QStringLiteral("-journal"));
        m_folder.Write(QStringLiteral("data.db"), old);
        const pid_t child = StartMigrating();
        ::usleep(static_cast<useconds_t>(random()) % duration);
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
        killed += WIFSIGNALED(status) ? 1 : 0;
        ASSERT_EQ(Found(), 61) << "killed " << kill;
    }
    EXPECT_GT(killed, Kills / 3);
}

TEST_F(Migration, BySeveralProcessesAtOnceHappensOnce)
{
    WriteOld(300);
    std::vector<pid_t> children;
    for (int count = 0; count < 4; ++count) {
        children.push_back(StartMigrating());
    }
    for (const pid_t child : children) {
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(Found(), 301);
}

TEST_F(Migration, OfAFileThatCannotBeWrittenIsRefused)
{
    WriteOld(3);
    const QByteArray old = m_folder.Read(QStringLiteral("data.db"));
    const pid_t child = ::fork();
    if (child == 0) {
        // Nobody may write here, root may everywhere.
        for (const QString& folder : {m_folder.Path(), QFileInfo(m_folder.Path()).path()}) {
            ::chmod(QFile::encodeName(folder).constData(), 0755);
        }
        const bool isOrdinary = ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
        DatabaseReason reason;
        const bool isRefused = SqlComponentDatabase::Open(m_path, reason) == nullptr;
        ::_exit(isOrdinary && isRefused && reason.code == QLatin1String("database.older") ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(m_folder.Read(QStringLiteral("data.db")), old);
}

} // namespace
