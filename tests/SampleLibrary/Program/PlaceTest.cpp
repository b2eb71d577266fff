#include "support/BuilderProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QStringList Tiny{QStringLiteral("--components"), QStringLiteral("20"), QStringLiteral("--end-categories"),
    QStringLiteral("10"), QStringLiteral("--quiet")};

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Whether nothing but @p name is left of a build in @p folder.
QStringList Names(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

class Place : public testing::Test
{
protected:
    QTemporaryDir m_place;
    QString m_folder = m_place.filePath(QStringLiteral("library"));

    BuilderRun Build() const { return RunBuilderProcess(QStringList{m_folder} + Tiny); }
};

TEST_F(Place, FoldersAboveAreMade)
{
    m_folder = m_place.filePath(QStringLiteral("a/b/library/"));
    EXPECT_EQ(Build().ExitCode, 0);
    EXPECT_TRUE(QFileInfo::exists(m_folder + QStringLiteral("library.json")));
    EXPECT_EQ(Names(m_place.filePath(QStringLiteral("a/b"))), QStringList{QStringLiteral("library")});
}

TEST_F(Place, AnEmptyFolderIsFilled)
{
    ASSERT_TRUE(QDir().mkdir(m_folder));
    EXPECT_EQ(Build().ExitCode, 0);
    EXPECT_EQ(Names(m_folder), (QStringList{QStringLiteral("catalogue.db"), QStringLiteral("components.db"),
                                   QStringLiteral("library.json"), QStringLiteral("static")}));
}

TEST_F(Place, AFolderWithOtherThingsIsNeverTouched)
{
    ASSERT_TRUE(QDir().mkdir(m_folder));
    WriteFile(m_folder + QStringLiteral("/thesis.txt"), "years of work");
    const BuilderRun run = Build();
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, "sample-library-builder: " + m_folder.toStdString() +
                              " is not empty and holds no sample library; choose another folder\n");
    EXPECT_EQ(Names(m_folder), QStringList{QStringLiteral("thesis.txt")});
    EXPECT_EQ(Names(m_place.path()), QStringList{QStringLiteral("library")});
}

TEST_F(Place, AForeignLibraryJsonDoesNotMakeAFolderOurs)
{
    ASSERT_TRUE(QDir().mkdir(m_folder));
    WriteFile(m_folder + QStringLiteral("/library.json"), "{\"books\":3}");
    EXPECT_EQ(Build().ExitCode, 1);
    EXPECT_EQ(Names(m_folder), QStringList{QStringLiteral("library.json")});
}

TEST_F(Place, AFileIsRefused)
{
    WriteFile(m_folder, "a file");
    const BuilderRun run = Build();
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, "sample-library-builder: " + m_folder.toStdString() + " is a file, not a folder\n");
    EXPECT_TRUE(QFileInfo(m_folder).isFile());
}

TEST_F(Place, AFolderThatCannotBeMadeIsNamed)
{
    WriteFile(m_place.filePath(QStringLiteral("blocked")), "a file where a folder is wanted");
    m_folder = m_place.filePath(QStringLiteral("blocked/library"));
    const BuilderRun run = Build();
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, "sample-library-builder: the folder " +
                              m_place.filePath(QStringLiteral("blocked")).toStdString() + " cannot be made\n");
}

TEST_F(Place, AFullDiskIsReportedAndTheOldLibraryStays)
{
    ASSERT_EQ(Build().ExitCode, 0);
    const std::map<std::string, std::string> old = FileDigests(m_folder);
    // A limit on the size of files stands for a full disk: writing fails in the middle of the database.
    const BuilderRun run =
        RunShell(QStringLiteral("ulimit -f 200; exec \"$BUILDER\" '%1' --components 500 --quiet").arg(m_folder));
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors.find("sample-library-builder: "), 0U) << run.Errors;
    EXPECT_EQ(FileDigests(m_folder), old);
    EXPECT_EQ(Names(m_place.path()), QStringList{QStringLiteral("library")});
}

TEST_F(Place, TwoBuildersDoNotMixTheirWork)
{
    QLockFile lock(m_folder + QStringLiteral(".lock"));
    lock.setStaleLockTime(0);
    ASSERT_TRUE(lock.tryLock());
    const BuilderRun run = Build();
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, "sample-library-builder: another builder is at work on " + m_folder.toStdString() + "\n");
    lock.unlock();
    EXPECT_EQ(Build().ExitCode, 0);
}

TEST_F(Place, AFolderAboveThatCannotBeWrittenIsReported)
{
    // Not even the superuser can make files there.
    m_folder = QStringLiteral("/proc/library");
    const BuilderRun run = Build();
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, "sample-library-builder: /proc cannot be written\n");
}

} // namespace
