#include "Building/LibraryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using samplelibrary::LibraryFolder;

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

const char* const Description = "{\"schema\":1,\"components\":1,\"categories\":1,\"sourceDigest\":\"abc\"}\n";

class Folder : public testing::Test
{
protected:
    void Publish(const QByteArray& catalogue)
    {
        LibraryFolder folder(m_path);
        const QString growing = folder.Begin();
        WriteFile(growing + QStringLiteral("/catalogue.db"), catalogue);
        WriteFile(growing + QStringLiteral("/components.db"), "the host's");
        folder.Publish(Description);
    }

    QByteArray Catalogue() const
    {
        QFile file(m_path + QStringLiteral("/catalogue.db"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    QTemporaryDir m_place;
    QString m_path = m_place.filePath(QStringLiteral("library"));
};

TEST_F(Folder, IsUpToDateOnlyForItsDigest)
{
    EXPECT_FALSE(LibraryFolder(m_path).IsUpToDate("abc"));
    Publish("one");
    EXPECT_TRUE(LibraryFolder(m_path).IsUpToDate("abc"));
    EXPECT_FALSE(LibraryFolder(m_path).IsUpToDate("abd"));
}

TEST_F(Folder, ReplacesAnOlderLibrary)
{
    Publish("one");
    Publish("two");
    EXPECT_EQ(Catalogue(), "two");
    EXPECT_EQ(QDir(m_place.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("library")});
}

TEST_F(Folder, BringsTheOldLibraryBackAfterAKillBetweenTheRenamings)
{
    Publish("one");
    ASSERT_TRUE(QDir().rename(m_path, m_path + QStringLiteral(".old")));
    {
        LibraryFolder folder(m_path);
        folder.Begin();
        EXPECT_EQ(Catalogue(), "one");
    }
    EXPECT_EQ(Catalogue(), "one");
}

TEST_F(Folder, LeavesFoldersOfOthersBesideItAlone)
{
    for (const char* suffix : {".growing", ".old"}) {
        ASSERT_TRUE(QDir().mkdir(m_path + QLatin1String(suffix)));
        WriteFile(m_path + QLatin1String(suffix) + QStringLiteral("/mine.txt"), "mine");
    }
    EXPECT_ANY_THROW(LibraryFolder(m_path).Begin());
    EXPECT_TRUE(QFileInfo::exists(m_path + QStringLiteral(".growing/mine.txt")));
    EXPECT_TRUE(QFileInfo::exists(m_path + QStringLiteral(".old/mine.txt")));
}

TEST_F(Folder, WithADamagedDescriptionIsNotOurs)
{
    ASSERT_TRUE(QDir().mkdir(m_path));
    WriteFile(m_path + QStringLiteral("/library.json"), "{\"schema\":1,");
    EXPECT_FALSE(LibraryFolder(m_path).IsUpToDate("abc"));
    EXPECT_ANY_THROW(LibraryFolder(m_path).Begin());
}

} // namespace
