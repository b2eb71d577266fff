#include "ComponentDatabase/Reading/DatabaseOpening.h"

#include "ComponentDatabase/Reading/SqlComponentDatabase.h"
#include "ComponentDatabase/Schema/Migration.h"
#include "ComponentDatabase/SmallDatabase.h"
#include "ComponentDatabase/Sql/SqlFault.h"
#include "ComponentDatabase/Sql/Statement.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>
#include <random>

using namespace componentdatabase;

namespace {

class DatabaseOpening : public testing::Test
{
protected:
    /// Writes the file and gives its bytes.
    QByteArray WriteWhole()
    {
        WriteSmallDatabase(m_path, ManyComponents(20));
        return m_folder.Read(QStringLiteral("data.db"));
    }

    DatabaseReason Refusal(int waitMs = ReadingWaitMs) const
    {
        DatabaseReason reason;
        EXPECT_EQ(SqlComponentDatabase::Open(m_path, reason, waitMs), nullptr);
        return reason;
    }

    void Alter(const char* sql) const { Connection(m_path, Connection::Access::ReadWrite, 0).Run(QLatin1String(sql)); }

    TestFolder m_folder;
    QString m_path = m_folder.Path(QStringLiteral("data.db"));
};

TEST_F(DatabaseOpening, OfAWholeFileGivesNoReasonAndLeavesItAlone)
{
    const QByteArray before = WriteWhole();
    DatabaseReason reason;
    const auto database = SqlComponentDatabase::Open(m_path, reason);
    ASSERT_NE(database, nullptr);
    EXPECT_EQ(reason.code, QString());
    EXPECT_EQ(database->Search(QStringLiteral("闸阀"), 100, reason).total, 21);
    EXPECT_EQ(m_folder.Read(QStringLiteral("data.db")), before);
    EXPECT_EQ(m_folder.Files(), QStringList{QStringLiteral("data.db")});
}

TEST_F(DatabaseOpening, OfAMissingFileSaysSoAndMakesNone)
{
    const DatabaseReason reason = Refusal();
    EXPECT_EQ(reason.code, QStringLiteral("database.missing"));
    EXPECT_EQ(reason.english, QStringLiteral("There is no component database %1.").arg(m_path));
    EXPECT_EQ(reason.chinese, QStringLiteral("没有组件数据库 %1。").arg(m_path));
    EXPECT_EQ(m_folder.Files(), QStringList());
}

TEST_F(DatabaseOpening, OfAFolderSaysSo)
{
    ASSERT_TRUE(QDir().mkpath(m_path));
    EXPECT_EQ(Refusal().code, QStringLiteral("database.no_file"));
}

TEST_F(DatabaseOpening, OfAnEmptyFileSaysSoAndLeavesItEmpty)
{
    m_folder.Write(QStringLiteral("data.db"), QByteArray());
    EXPECT_EQ(Refusal().code, QStringLiteral("database.empty"));
    EXPECT_EQ(m_folder.Read(QStringLiteral("data.db")), QByteArray());
}

TEST_F(DatabaseOpening, OfAnotherKindOfFileSaysSo)
{
    m_folder.Write(QStringLiteral("data.db"), QByteArray(5000, 'x'));
    EXPECT_EQ(Refusal().code, QStringLiteral("database.foreign"));
}

TEST_F(DatabaseOpening, OfAnotherProgramsDatabaseSaysSo)
{
    WriteWhole();
    Alter("PRAGMA application_id = 7");
    EXPECT_EQ(Refusal().code, QStringLiteral("database.foreign"));
}

TEST_F(DatabaseOpening, OfANewerVersionSaysSoAndChangesNothing)
{
    WriteWhole();
    Alter("PRAGMA user_version = 99");
    const QByteArray before = m_folder.Read(QStringLiteral("data.db"));
    const DatabaseReason reason = Refusal();
    EXPECT_EQ(reason.code, QStringLiteral("database.newer"));
    EXPECT_EQ(reason.english,
        QStringLiteral(
            "The component database %1 was made by a newer program: its version is 99, this program knows up to 3.")
            .arg(m_path));
    DatabaseReason writing;
    EXPECT_EQ(OpenForWriting(m_path, writing), nullptr);
    EXPECT_EQ(writing.code, QStringLiteral("database.newer"));
    EXPECT_EQ(m_folder.Read(QStringLiteral("data.db")), before);
}

TEST_F(DatabaseOpening, OfALockedFileSaysSoAndSucceedsAfterwards)
{
    WriteWhole();
    {
        const Connection other(m_path, Connection::Access::ReadWrite, 0);
        other.Run(QStringLiteral("BEGIN EXCLUSIVE"));
        EXPECT_EQ(Refusal(10).code, QStringLiteral("database.locked"));
    }
    DatabaseReason reason;
    EXPECT_NE(SqlComponentDatabase::Open(m_path, reason), nullptr);
}

TEST_F(DatabaseOpening, OfATruncatedFileIsRefusedWhereverItWasCut)
{
    const QByteArray whole = WriteWhole();
    for (int size = 1; size < whole.size(); size += 1499) {
        m_folder.Write(QStringLiteral("data.db"), whole.left(size));
        const DatabaseReason reason = Refusal();
        EXPECT_TRUE(
            reason.code == QLatin1String("database.damaged") || reason.code == QLatin1String("database.foreign"))
            << size << ' ' << reason.code.toStdString();
        ASSERT_EQ(m_folder.Read(QStringLiteral("data.db")), whole.left(size));
    }
}

/// Everything that the interface can read.
void ReadAll(const ComponentDatabase& database)
{
    DatabaseReason reason;
    database.Disciplines(reason);
    for (const CategoryRow& row : database.Categories(reason)) {
        database.Properties(row.id, reason);
        database.Legends(row.code, 1, reason);
    }
    database.LegendFolder(reason);
    for (const char* text : {"闸阀", "gate", "C-1", "dn15", "zf"}) {
        for (const SearchHit& hit : database.Search(QString::fromUtf8(text), 10, reason).hits) {
            const auto component = database.Component(hit.code, reason);
            database.FamilyTypes(component ? component->id : 0, reason);
        }
    }
}

TEST_F(DatabaseOpening, OfADamagedFileIsRefusedOrReadWithoutHarm)
{
    const QByteArray whole = WriteWhole();
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 150; ++round) {
        QByteArray damaged = whole;
        const int place = static_cast<int>(random() % static_cast<unsigned>(whole.size()));
        for (int index = place; index < std::min(place + 1 + round % 40, whole.size()); ++index) {
            damaged[index] = static_cast<char>(random());
        }
        m_folder.Write(QStringLiteral("data.db"), damaged);
        DatabaseReason reason;
        const auto database = SqlComponentDatabase::Open(m_path, reason);
        EXPECT_EQ(database == nullptr, static_cast<bool>(reason));
        refused += database == nullptr ? 1 : 0;
        if (database != nullptr) {
            ReadAll(*database);
        }
        // An old version in a damaged header is brought up to date, as a whole old file is.
        if (damaged.mid(60, 4) == whole.mid(60, 4)) {
            ASSERT_EQ(m_folder.Read(QStringLiteral("data.db")), damaged) << round;
        }
    }
    // The engine's check finds damage to the structure, not a changed letter in a text.
    EXPECT_GT(refused, 5);
    EXPECT_LT(refused, 150);
}

TEST_F(DatabaseOpening, ForWritingTurnsToAJournalBesideWhichOthersRead)
{
    WriteWhole();
    DatabaseReason reason;
    const auto writing = OpenForWriting(m_path, reason);
    ASSERT_NE(writing, nullptr);
    EXPECT_EQ(writing->Text(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("wal"));
    writing->Run(QStringLiteral("BEGIN IMMEDIATE"));
    writing->Run(QStringLiteral("DELETE FROM legend"));
    const auto reading = SqlComponentDatabase::Open(m_path, reason);
    ASSERT_NE(reading, nullptr) << reason.english.toStdString();
    EXPECT_EQ(reading->Legends(QStringLiteral("WAT.VLV.GATE"), 1, reason).size(), 2U);
    writing->Run(QStringLiteral("COMMIT"));
    EXPECT_EQ(reading->Legends(QStringLiteral("WAT.VLV.GATE"), 1, reason).size(), 0U);
}

TEST_F(DatabaseOpening, FromOtherThreadsReadsTheSame)
{
    WriteWhole();
    DatabaseReason reason;
    const auto database = SqlComponentDatabase::Open(m_path, reason);
    ASSERT_NE(database, nullptr);
    std::vector<std::unique_ptr<QThread>> threads;
    std::atomic<int> found{0};
    for (int count = 0; count < 4; ++count) {
        threads.emplace_back(QThread::create([&] {
            DatabaseReason fault;
            for (int round = 0; round < 20; ++round) {
                found += static_cast<int>(database->Search(QStringLiteral("gate"), 100, fault).total);
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads) {
        thread->wait();
    }
    EXPECT_EQ(found, 4 * 20 * 21);
}

} // namespace
