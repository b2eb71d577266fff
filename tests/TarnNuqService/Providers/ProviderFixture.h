#pragma once

#include "TarnNuqService/Providers/ImageSample.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/WaitFor.h"
#include "tarnnuq/PathUtils.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace testsupport {

/// A host whose thumbnails lie in a folder of the test, and a server of images.
class ProviderFixture : public ::testing::Test
{
protected:
    ProviderFixture()
    {
        QDir().mkpath(CacheFolder());
        host.paths.folder = (CacheFolder() + QLatin1Char('/')).toStdWString();
    }

    /// A folder whose name holds a blank and Chinese letters.
    QString CacheFolder() const { return folder.filePath(QStringLiteral("缓存 目录")); }

    /// The address of a target such as "/a.png".
    std::wstring Url(const QString& target) const { return (server.BaseUrl() + target).toStdWString(); }

    /// The cache file of a URL.
    static QString FileOf(const std::wstring& url)
    {
        return QString::fromStdWString(tarnnuq::PathUtils::GetThumbnailDownloadFilePath(url, L".png"));
    }

    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(content), content.size());
    }

    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    QStringList CacheFiles() const { return QDir(CacheFolder()).entryList(QDir::Files); }

    /// The one warning so far must be this one.
    void ExpectWarning(const char* file, const char* function, const wchar_t* message) const
    {
        ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
        const DebugWarning& warning = host.debugMessages.Warnings().front();
        EXPECT_EQ(warning.file, file);
        EXPECT_GT(warning.line, 0);
        EXPECT_EQ(warning.function, function);
        EXPECT_EQ(warning.message, message);
        EXPECT_EQ(warning.author, L"tarnnuq");
        EXPECT_EQ(warning.date, L"2022-01-25");
    }

    RecordingHost host;
    LoopbackServer server;
    QTemporaryDir folder;
};

} // namespace testsupport
