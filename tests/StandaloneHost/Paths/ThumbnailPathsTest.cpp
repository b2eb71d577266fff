#include "Paths/ThumbnailPaths.h"

#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

using standalone::ThumbnailPaths;

namespace {

QString PathOf(const ThumbnailPaths& paths, const std::wstring& url, const std::wstring& extension)
{
    return QString::fromStdWString(paths.DoGetThumbnailDownloadFilePath(url, extension));
}

TEST(ThumbnailPaths, NameTheFileByTheHashOfTheUrl)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Path());
    // printf %s abc | sha256sum
    EXPECT_EQ(PathOf(paths, L"abc", L".png"),
        folder.Path(QStringLiteral("thumbnails/ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad.png")));
    // printf %s http://h/水泵.png | sha256sum
    EXPECT_EQ(PathOf(paths, L"http://h/水泵.png", L".png"),
        folder.Path(QStringLiteral("thumbnails/552f39744ca17807315fcbce1b0d5c8d157dbe5f692f42bfe028693982b6eb2c.png")));
}

TEST(ThumbnailPaths, TakeAnExtensionWithOrWithoutItsDot)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Path());
    const QString bare = PathOf(paths, L"abc", L"");
    EXPECT_EQ(PathOf(paths, L"abc", L"png"), bare + QStringLiteral(".png"));
    EXPECT_EQ(PathOf(paths, L"abc", L".png"), bare + QStringLiteral(".png"));
    EXPECT_EQ(PathOf(paths, L"abc", L".tar.gz"), bare + QStringLiteral(".tar.gz"));
    EXPECT_EQ(PathOf(paths, L"abc", L"."), bare);
}

TEST(ThumbnailPaths, StayInTheFolderWhateverTheExtensionHolds)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Path());
    for (const wchar_t* extension : {L"/../../x", L"\\..\\x", L"a/b", L"\n", L"../x"}) {
        const QString path = PathOf(paths, L"abc", extension);
        EXPECT_EQ(QDir::cleanPath(QFileInfo(path).path()), paths.Folder()) << path.toStdString();
        EXPECT_FALSE(QFileInfo(path).fileName().contains(QLatin1Char('\\'))) << path.toStdString();
    }
    EXPECT_EQ(PathOf(paths, L"abc", L"a/b"), PathOf(paths, L"abc", L"ab"));
}

TEST(ThumbnailPaths, MakeTheirFolderForTheOwnerOnly)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Path(QStringLiteral("cache")));
    EXPECT_FALSE(QFileInfo::exists(paths.Folder()));
    const QString path = PathOf(paths, L"abc", L".png");
    ASSERT_TRUE(QFileInfo(paths.Folder()).isDir());
    EXPECT_EQ(QFile::permissions(paths.Folder()) & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther), 0);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
}

TEST(ThumbnailPaths, StillNameTheFileWhenTheFolderCannotBeMade)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Write(QStringLiteral("a file"), "x"));
    EXPECT_EQ(PathOf(paths, L"abc", L""),
        folder.Path(
            QStringLiteral("a file/thumbnails/ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad")));
}

TEST(ThumbnailPaths, TellUrlsApartByCaseAndQuery)
{
    const TestFolder folder;
    const ThumbnailPaths paths(folder.Path());
    const QString one = PathOf(paths, L"http://h/a.png?size=64", L".png");
    EXPECT_EQ(PathOf(paths, L"http://h/a.png?size=64", L".png"), one);
    EXPECT_NE(PathOf(paths, L"http://h/A.png?size=64", L".png"), one);
    EXPECT_NE(PathOf(paths, L"http://h/a.png?size=128", L".png"), one);
}

} // namespace
