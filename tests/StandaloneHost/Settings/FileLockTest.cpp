#include "Settings/FileLock.h"

#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QElapsedTimer>
#include <QFile>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

using standalone::FileLock;

namespace {

TEST(FileLock, IsHeldByOneAtATime)
{
    const TestFolder folder;
    auto first = std::make_unique<FileLock>(folder.Path(QStringLiteral("锁")));
    FileLock second(folder.Path(QStringLiteral("锁")));
    EXPECT_TRUE(first->TryLock(0));
    EXPECT_FALSE(second.TryLock(0));
    first.reset();
    EXPECT_TRUE(second.TryLock(0));
}

TEST(FileLock, WaitsAsLongAsItIsTold)
{
    const TestFolder folder;
    FileLock first(folder.Path(QStringLiteral("lock")));
    FileLock second(folder.Path(QStringLiteral("lock")));
    ASSERT_TRUE(first.TryLock(0));
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(second.TryLock(200));
    EXPECT_GE(clock.elapsed(), 200);
}

TEST(FileLock, LeavesNoFileBehind)
{
    const TestFolder folder;
    {
        FileLock lock(folder.Path(QStringLiteral("lock")));
        FileLock loser(folder.Path(QStringLiteral("lock")));
        ASSERT_TRUE(lock.TryLock(0));
        ASSERT_FALSE(loser.TryLock(0));
        EXPECT_EQ(folder.Files(), QStringList{QStringLiteral("lock")});
    }
    EXPECT_EQ(folder.Files(), QStringList());
}

TEST(FileLock, TakesOverAFileThatADeadProcessLeft)
{
    const TestFolder folder;
    FileLock lock(folder.Write(QStringLiteral("lock"), "left behind"));
    EXPECT_TRUE(lock.TryLock(0));
}

TEST(FileLock, FailsAtOnceWithoutItsFolder)
{
    const TestFolder folder;
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(FileLock(folder.Path(QStringLiteral("none/lock"))).TryLock(60000));
    EXPECT_LT(clock.elapsed(), 30000);
}

TEST(FileLock, KeepsThreadsApart)
{
    const TestFolder folder;
    std::atomic<int> inside{0};
    int rounds = 0; // Guarded by the lock under test.
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&] {
            for (int round = 0; round < 100; ++round) {
                FileLock lock(folder.Path(QStringLiteral("lock")));
                ASSERT_TRUE(lock.TryLock(60000));
                EXPECT_EQ(inside.fetch_add(1), 0);
                ++rounds;
                EXPECT_EQ(inside.fetch_sub(1), 1);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(rounds, 400);
    EXPECT_EQ(folder.Files(), QStringList());
}

} // namespace
