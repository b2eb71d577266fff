#include "Pictures/ThumbnailCache.h"

#include "support/FileSizeLimit.h"
#include "support/RecordingHost.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

/// A cache in the folder of a host that has no rule of its own.
class ThumbnailCacheTest : public ::testing::Test
{
protected:
    ThumbnailCacheTest()
    {
        host.Remove(&hostsdk::HostServices::paths);
        QDir(ThumbnailCache().Folder()).removeRecursively();
    }

    static QString Url(int number) { return QStringLiteral("http://h/水泵 %1.png").arg(number); }

    /// Puts a file into the cache that was used so many seconds ago.
    static QString Put(const QString& path, int size, int age)
    {
        EXPECT_TRUE(ThumbnailCache::Keep(path, QByteArray(size, 'x')));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-age), QFileDevice::FileModificationTime));
        return path;
    }

    static QString Put(int number, int size, int age) { return Put(ThumbnailCache::FileOf(Url(number)), size, age); }

    static QStringList Files(const ThumbnailCache& cache)
    {
        return QDir(cache.Folder()).entryList(QDir::Files | QDir::Hidden);
    }

    testsupport::RecordingHost host;
};

TEST_F(ThumbnailCacheTest, UsesTheFilesOfTheLibrarysProviders)
{
    const QByteArray hash = QCryptographicHash::hash(Url(1).toUtf8(), QCryptographicHash::Sha256).toHex();
    const ThumbnailCache cache;
    EXPECT_EQ(ThumbnailCache::FileOf(Url(1)),
        cache.Folder() + QLatin1Char('/') + QString::fromLatin1(hash) + QStringLiteral(".png"));
    EXPECT_EQ(cache.Limit(), 256 * 1024 * 1024);
}

TEST_F(ThumbnailCacheTest, ReplacesAFileAsAWhole)
{
    const QString file = ThumbnailCache::FileOf(Url(1));
    EXPECT_TRUE(ThumbnailCache::Keep(file, "old and longer"));
    EXPECT_TRUE(ThumbnailCache::Keep(file, "new"));
    QFile kept(file);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "new");
    EXPECT_EQ(Files(ThumbnailCache()).size(), 1);
}

TEST_F(ThumbnailCacheTest, KeepsTheOldFileOnAFullDisk)
{
    const QString file = ThumbnailCache::FileOf(Url(1));
    EXPECT_TRUE(ThumbnailCache::Keep(file, "old"));
    {
        const testsupport::FileSizeLimit limit(100);
        EXPECT_FALSE(ThumbnailCache::Keep(file, QByteArray(5000, 'x')));
    }
    QFile kept(file);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "old");
    EXPECT_EQ(Files(ThumbnailCache()).size(), 1) << "nothing half written is left";
}

TEST_F(ThumbnailCacheTest, MeasuresAndClearsItsOwnFilesOnly)
{
    const ThumbnailCache cache;
    Put(1, 100, 0);
    Put(2, 50, 0);
    Put(cache.Folder() + QStringLiteral("/of somebody else.png"), 1000, 0);
    const QString upperCase = QFileInfo(ThumbnailCache::FileOf(Url(3))).completeBaseName().toUpper();
    Put(cache.Folder() + QLatin1Char('/') + upperCase, 1000, 0);
    EXPECT_EQ(cache.Measure().files, 2);
    EXPECT_EQ(cache.Measure().bytes, 150);
    const CacheUsage removed = cache.Clear();
    EXPECT_EQ(removed.files, 2);
    EXPECT_EQ(removed.bytes, 150);
    EXPECT_EQ(cache.Measure().files, 0);
    EXPECT_EQ(Files(cache).size(), 2);
}

TEST_F(ThumbnailCacheTest, TakesTheLeastRecentlyUsedFilesOnceTheLimitIsPassed)
{
    const ThumbnailCache cache(1000);
    const QString oldest = Put(1, 300, 400);
    const QString newest = Put(2, 300, 10);
    const QString middle = Put(3, 300, 200);
    EXPECT_EQ(cache.Trim().files, 0) << "within the limit";
    const QString older = Put(4, 200, 300);
    const CacheUsage removed = cache.Trim();
    EXPECT_EQ(removed.files, 1);
    EXPECT_EQ(removed.bytes, 300);
    EXPECT_FALSE(QFile::exists(oldest));
    for (const QString& kept : {older, middle, newest})
        EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(ThumbnailCacheTest, GoesAnEighthBelowTheLimitSoThatItNeedNotComeAgainAtOnce)
{
    const ThumbnailCache cache(800);
    for (int number = 0; number < 9; ++number)
        Put(number, 100, 100 - number);
    EXPECT_EQ(cache.Trim().files, 2);
    EXPECT_EQ(cache.Measure().bytes, 700);
}

TEST_F(ThumbnailCacheTest, CountsUseAndNotAge)
{
    const ThumbnailCache cache(500);
    const QString used = Put(1, 300, 5000);
    const QString unused = Put(2, 300, 1000);
    ThumbnailCache::NoteUse(used);
    EXPECT_EQ(cache.Trim().files, 1);
    EXPECT_TRUE(QFile::exists(used));
    EXPECT_FALSE(QFile::exists(unused));
    ThumbnailCache::NoteUse(unused);
    EXPECT_FALSE(QFile::exists(unused)) << "noting a use makes no file";
}

TEST_F(ThumbnailCacheTest, RemovesWhatDeadWritersHaveLeft)
{
    const ThumbnailCache cache;
    const QString whole = Put(1, 100, 90000);
    const QString dead = Put(whole + QStringLiteral(".AbCdEf"), 10, 3700);
    const QString working = Put(whole + QStringLiteral(".GhIjKl"), 10, 60);
    EXPECT_EQ(cache.Trim().files, 1);
    EXPECT_FALSE(QFile::exists(dead));
    EXPECT_TRUE(QFile::exists(working));
    EXPECT_TRUE(QFile::exists(whole));
}

TEST_F(ThumbnailCacheTest, IsEmptyWithoutItsFolder)
{
    const ThumbnailCache cache;
    QDir(cache.Folder()).removeRecursively();
    EXPECT_EQ(cache.Measure().files, 0);
    EXPECT_EQ(cache.Clear().files, 0);
    EXPECT_EQ(cache.Trim().files, 0);
}

} // namespace
} // namespace componentlibrary
