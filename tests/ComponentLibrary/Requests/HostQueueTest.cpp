#include "Requests/HostQueue.h"

#include "support/WaitFor.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <vector>

namespace componentlibrary {
namespace {

using testsupport::WaitFor;

const QUrl kHost(QStringLiteral("http://one:80/a"));
const QUrl kOther(QStringLiteral("http://one:81/a"));

class HostQueueTest : public ::testing::Test
{
protected:
    HostQueue::Ticket Enter(int number, const QUrl& url = kHost)
    {
        return queue->Enter(url, [this, number] { started.push_back(number); });
    }

    std::unique_ptr<HostQueue> queue = std::make_unique<HostQueue>(2);
    std::vector<int> started;
};

TEST_F(HostQueueTest, StartsAsManyAsThereAreSlotsInOrder)
{
    std::vector<HostQueue::Ticket> tickets;
    for (int number = 0; number < 5; ++number)
        tickets.push_back(Enter(number));
    EXPECT_TRUE(started.empty()) << "nothing starts inside Enter";
    ASSERT_TRUE(WaitFor([this] { return started.size() == 2; }));
    EXPECT_EQ(queue->Running(kHost), 2);
    EXPECT_EQ(queue->Waiting(kHost), 3);
    tickets[0].Release();
    ASSERT_TRUE(WaitFor([this] { return started.size() == 3; }));
    EXPECT_EQ(started, (std::vector<int>{0, 1, 2}));
}

TEST_F(HostQueueTest, CountsEachHostAndPortByItself)
{
    std::vector<HostQueue::Ticket> tickets;
    for (int number = 0; number < 3; ++number)
        tickets.push_back(Enter(number));
    tickets.push_back(Enter(10, kOther));
    ASSERT_TRUE(WaitFor([this] { return started.size() == 3; }));
    EXPECT_EQ(started, (std::vector<int>{0, 1, 10}));
}

TEST_F(HostQueueTest, ForgetsWhoLeavesBeforeItsTurn)
{
    std::vector<HostQueue::Ticket> tickets;
    for (int number = 0; number < 4; ++number)
        tickets.push_back(Enter(number));
    tickets[2].Release();
    ASSERT_TRUE(WaitFor([this] { return started.size() == 2; }));
    tickets[0].Release();
    ASSERT_TRUE(WaitFor([this] { return started.size() == 3; }));
    EXPECT_EQ(started, (std::vector<int>{0, 1, 3}));
}

TEST_F(HostQueueTest, IsLeftByReleasingTwiceOnlyOnce)
{
    HostQueue::Ticket first = Enter(0);
    HostQueue::Ticket second = Enter(1);
    ASSERT_TRUE(WaitFor([this] { return started.size() == 2; }));
    first.Release();
    first.Release();
    EXPECT_EQ(queue->Running(kHost), 1);
}

TEST_F(HostQueueTest, MayDieBeforeItsTickets)
{
    HostQueue::Ticket ticket = Enter(0);
    queue.reset();
    ticket.Release();
    QCoreApplication::processEvents();
    EXPECT_TRUE(started.empty());
}

TEST_F(HostQueueTest, StartsTheNextWhenATicketIsReplaced)
{
    HostQueue single(1);
    int runs = 0;
    HostQueue::Ticket ticket = single.Enter(kHost, [&runs] { ++runs; });
    ASSERT_TRUE(WaitFor([&runs] { return runs == 1; }));
    ticket = single.Enter(kHost, [&runs] { ++runs; });
    EXPECT_TRUE(WaitFor([&runs] { return runs == 2; }));
}

} // namespace
} // namespace componentlibrary
