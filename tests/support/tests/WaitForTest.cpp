#include "support/WaitFor.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testsupport::WaitFor;

TEST(WaitingForACondition, EndsAtOnceWhenItHolds)
{
    EXPECT_TRUE(WaitFor([] { return true; }, 0ms));
}

TEST(WaitingForACondition, RunsTheEventLoopMeanwhile)
{
    bool fired = false;
    QTimer::singleShot(1ms, [&fired] { fired = true; });
    EXPECT_TRUE(WaitFor([&fired] { return fired; }));
}

TEST(WaitingForACondition, DeletesWhatIsToBeDeletedLater)
{
    const QPointer<QObject> object = new QObject;
    object->deleteLater();
    EXPECT_TRUE(WaitFor([&object] { return object.isNull(); }));
}

TEST(WaitingForACondition, GivesUpAfterItsLimit)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(WaitFor([] { return false; }, 50ms));
    EXPECT_GE(clock.elapsed(), 50);
}
