#include "tarnnuq/PathUtils.h"
#include "support/RecordingHost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

using tarnnuq::PathUtils;
using testsupport::RecordingHost;

namespace {

QString CacheHome()
{
    return qEnvironmentVariable("XDG_CACHE_HOME");
}

QFileInfo DefaultPath(const std::wstring& url)
{
    return QFileInfo(QString::fromStdWString(PathUtils::GetThumbnailDownloadFilePath(url, L".png")));
}

} // namespace

TEST(ThumbnailPaths, AreTheHosts)
{
    RecordingHost host;
    host.paths.folder = L"/thumbnails/";
    EXPECT_EQ(PathUtils::GetThumbnailDownloadFilePath(L"http://a/b?c", L".png"), L"/thumbnails/http___a_b_c.png");
    const std::vector<std::pair<std::wstring, std::wstring>> expected{{L"http://a/b?c", L".png"}};
    EXPECT_EQ(host.paths.questions, expected);
}

TEST(ThumbnailPaths, WithoutAHostAreNamedAfterTheUrlsDigest)
{
    EXPECT_EQ(DefaultPath(L"http://127.0.0.1/static/a.png").fileName(),
        QStringLiteral("95f1a78ab18629dee79e3902d0b649b9f2080fb58682de489094cf218e96d3ce.png"));
}

TEST(ThumbnailPaths, WithoutAHostTakeTheUrlInUtf8)
{
    EXPECT_EQ(DefaultPath(L"http://host/风管.png").fileName(),
        QStringLiteral("89af6bd6bc56f601cb54a959d722ef7d84f8c35e58aa930d1776a2a60f960dfa.png"));
}

TEST(ThumbnailPaths, WithoutAHostCarryTheExtensionAsGiven)
{
    const std::wstring path = PathUtils::GetThumbnailDownloadFilePath(L"http://127.0.0.1/static/a.png", L".图片");
    EXPECT_EQ(path.substr(path.rfind(L'/')), L"/95f1a78ab18629dee79e3902d0b649b9f2080fb58682de489094cf218e96d3ce.图片");
}

TEST(ThumbnailPaths, WithoutAHostLieInTheCacheFolder)
{
    const QFileInfo path = DefaultPath(L"http://host/a.png");
    EXPECT_TRUE(path.isAbsolute());
    EXPECT_TRUE(path.absolutePath().startsWith(CacheHome() + QLatin1Char('/')));
}

TEST(ThumbnailPaths, WithoutAHostHaveAFolderThatExists)
{
    const QFileInfo path = DefaultPath(L"http://host/a.png");
    ASSERT_TRUE(path.absoluteDir().exists());
    QFile file(path.absoluteFilePath());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST(ThumbnailPaths, WithoutAHostAreStableAndDistinct)
{
    const QString path = DefaultPath(L"http://host/a.png").absoluteFilePath();
    EXPECT_EQ(DefaultPath(L"http://host/a.png").absoluteFilePath(), path);
    EXPECT_NE(DefaultPath(L"http://host/A.png").absoluteFilePath(), path);
}

TEST(ThumbnailPaths, WithoutAHostAreStillGivenWhenTheFolderCannotBeMade)
{
    QFile inTheWay(CacheHome());
    ASSERT_FALSE(QFileInfo::exists(CacheHome()));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const QFileInfo path = DefaultPath(L"http://host/a.png");
    EXPECT_TRUE(path.absoluteFilePath().startsWith(CacheHome()));
    EXPECT_FALSE(path.absoluteDir().exists());
}
