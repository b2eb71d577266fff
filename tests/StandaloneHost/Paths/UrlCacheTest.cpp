#include "Paths/UrlCache.h"

#include "support/FileSizeLimit.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

using standalone::UrlCache;

namespace {

const QString Png = QStringLiteral(".png");
const QString Url = QStringLiteral("http://h/水泵.png?size=64");

TEST(UrlCache, KeepsOneContentAUrlAndExtension)
{
    const TestFolder folder;
    const UrlCache cache(folder.Path(QStringLiteral("families")));
    EXPECT_EQ(cache.Read(Url, Png), std::nullopt);
    EXPECT_EQ(cache.Store(Url, Png, "first and longer"), QString());
    EXPECT_EQ(cache.Store(Url, Png, "second"), QString());
    EXPECT_EQ(cache.Store(Url, QStringLiteral("json"), "third"), QString());
    EXPECT_EQ(cache.Store(Url + QLatin1Char('0'), Png, QByteArray("\0\xff", 2)), QString());
    EXPECT_EQ(cache.Read(Url, Png), QByteArray("second"));
    EXPECT_EQ(cache.Read(Url, QStringLiteral(".json")), QByteArray("third"));
    EXPECT_EQ(cache.Read(Url + QLatin1Char('0'), Png), QByteArray("\0\xff", 2));
    EXPECT_EQ(folder.Files().size(), 3);
}

TEST(UrlCache, NamesTheFileByTheHashOfTheUrl)
{
    const TestFolder folder;
    const UrlCache cache(folder.Path(QStringLiteral("families")));
    // printf %s abc | sha256sum
    EXPECT_EQ(cache.PathOf(QStringLiteral("abc"), QStringLiteral("nuqfamily")),
        folder.Path(
            QStringLiteral("families/ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad.nuqfamily")));
    EXPECT_EQ(cache.Folder(), folder.Path(QStringLiteral("families")));
    EXPECT_TRUE(QFileInfo(cache.Folder()).isDir());
}

TEST(UrlCache, StaysInItsFolderWhateverUrlAndExtensionHold)
{
    const TestFolder folder;
    const UrlCache cache(folder.Path(QStringLiteral("families")));
    for (const char* extension : {"/../../x", "\\..\\x", "a/b", "\n", "../x", ""}) {
        EXPECT_EQ(cache.Store(QStringLiteral("../../x"), QString::fromLatin1(extension), "x"), QString());
    }
    for (const QString& file : folder.Files()) {
        EXPECT_TRUE(file.startsWith(QStringLiteral("families/"))) << file.toStdString();
    }
}

TEST(UrlCache, SaysWhyItCannotKeepSomething)
{
    const TestFolder folder;
    const UrlCache cache(folder.Write(QStringLiteral("a file"), "x"));
    EXPECT_NE(cache.Store(Url, Png, "content"), QString());
    EXPECT_EQ(cache.Read(Url, Png), std::nullopt);
    EXPECT_EQ(folder.Read(QStringLiteral("a file")), "x");
}

TEST(UrlCache, KeepsTheOldContentOnAFullDisk)
{
    const TestFolder folder;
    const UrlCache cache(folder.Path());
    ASSERT_EQ(cache.Store(Url, Png, "old"), QString());
    {
        const testsupport::FileSizeLimit limit(1000);
        EXPECT_NE(cache.Store(Url, Png, QByteArray(100000, 'x')), QString());
    }
    EXPECT_EQ(cache.Read(Url, Png), QByteArray("old"));
    EXPECT_EQ(folder.Files().size(), 1) << "nothing half written is left";
}

} // namespace
