#include "Paths/CacheContent.h"
#include "Paths/UrlCache.h"

#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <QProcess>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

using standalone::UrlCache;

namespace {

constexpr int kTimeLimitMs = 60000;

std::unique_ptr<QProcess> StartWriter(const QString& folder, char letter, int count)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(CACHE_WRITER), {folder, QString(QLatin1Char(letter)), QString::number(count)});
    return process;
}

bool EndsWell(QProcess& process)
{
    process.waitForFinished(kTimeLimitMs);
    return process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool IsRunning(QProcess& process)
{
    return !process.waitForFinished(0) && process.state() != QProcess::NotRunning;
}

TEST(UrlCacheProcesses, NeverShowEachOtherHalfAFile)
{
    const TestFolder folder;
    const QString shared = folder.Path(QStringLiteral("made by whoever is first"));
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const char letter : {'a', 'b', 'c'}) {
        writers.push_back(StartWriter(shared, letter, 300));
    }
    const UrlCache cache(shared);
    int readings = 0;
    while (IsRunning(*writers.front())) {
        if (const std::optional<QByteArray> kept = cache.Read(CacheUrl(readings), QStringLiteral(".png"))) {
            EXPECT_TRUE(IsWholeCacheContent(*kept)) << kept->size() << " bytes";
            ++readings;
        }
    }
    for (const std::unique_ptr<QProcess>& writer : writers) {
        EXPECT_TRUE(EndsWell(*writer));
    }
    EXPECT_GT(readings, 1);
    EXPECT_EQ(QDir(shared).entryList(QDir::Files | QDir::Hidden).size(), CacheUrlCount);
}

TEST(UrlCacheProcesses, LeaveOnlyWholeFilesWhenKilled)
{
    const TestFolder folder;
    const UrlCache cache(folder.Path());
    for (int round = 0; round < 20; ++round) {
        const char letter = static_cast<char>('a' + round);
        const std::unique_ptr<QProcess> writer = StartWriter(folder.Path(), letter, 1000000);
        const auto hasWritten = [&cache, letter, round] {
            const std::optional<QByteArray> kept = cache.Read(CacheUrl(round), QStringLiteral(".png"));
            return kept && kept->endsWith(letter);
        };
        while (!hasWritten() && IsRunning(*writer)) {
        }
        writer->kill();
        writer->waitForFinished(kTimeLimitMs);
        for (int number = 0; number < CacheUrlCount; ++number) {
            const std::optional<QByteArray> kept = cache.Read(CacheUrl(number), QStringLiteral(".png"));
            EXPECT_TRUE(!kept || IsWholeCacheContent(*kept)) << "round " << round;
        }
        EXPECT_EQ(cache.Store(CacheUrl(round), QStringLiteral(".png"), CacheContent('z', round)), QString());
    }
}

} // namespace
