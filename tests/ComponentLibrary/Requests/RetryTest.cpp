#include "Requests/RetryAfter.h"
#include "Requests/RetryPolicy.h"

#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

const QDateTime kNow = QDateTime::fromString(QStringLiteral("2026-11-21T10:00:00.500Z"), Qt::ISODateWithMs);

qint64 WaitOf(const char* retryAfter, const char* date = "")
{
    const QDateTime moment = RetryMoment(retryAfter, date, kNow);
    return moment.isValid() ? kNow.msecsTo(moment) : -1;
}

TEST(RetryAfter, ReadsSeconds)
{
    EXPECT_EQ(WaitOf("0"), 0);
    EXPECT_EQ(WaitOf(" 7 "), 7000);
}

TEST(RetryAfter, ReadsADateByTheServersClock)
{
    EXPECT_EQ(WaitOf("Sat, 21 Nov 2026 12:00:10 GMT", "Sat, 21 Nov 2026 12:00:00 GMT"), 10000);
}

TEST(RetryAfter, ReadsADateByTheOwnClockWhenTheServerTellsNone)
{
    EXPECT_EQ(WaitOf("Sat, 21 Nov 2026 10:00:10 GMT"), 9500);
}

TEST(RetryAfter, IsNowForADateInThePast)
{
    EXPECT_EQ(WaitOf("Sat, 21 Nov 2026 09:00:00 GMT"), 0);
}

TEST(RetryAfter, IgnoresWhatItCannotRead)
{
    for (const char* text : {"", "soon", "-5", "1.5", "Sat, 99 Nov 2026 09:00:00 GMT", "12 s"})
        EXPECT_EQ(WaitOf(text), -1) << text;
}

TEST(RetryAfter, BoundsAbsurdWaits)
{
    EXPECT_EQ(WaitOf("9223372036854775807"), 366LL * 24 * 3600 * 1000);
}

TEST(HttpDate, ReadsTheThreeFormsOfTheStandard)
{
    const QDateTime moment(QDate(1994, 11, 6), QTime(8, 49, 37), Qt::UTC);
    EXPECT_EQ(HttpDate("Sun, 06 Nov 1994 08:49:37 GMT"), moment);
    EXPECT_EQ(HttpDate("Sunday, 06-Nov-94 08:49:37 GMT"), moment);
    EXPECT_EQ(HttpDate("Sun Nov  6 08:49:37 1994"), moment);
    EXPECT_FALSE(HttpDate("yesterday").isValid());
}

TEST(RetryPolicy, GrowsAndJitters)
{
    const RetryPolicy policy;
    EXPECT_EQ(policy.DelayBefore(2, 0.5), 300);
    EXPECT_EQ(policy.DelayBefore(3, 0.5), 900);
    EXPECT_EQ(policy.DelayBefore(2, 0.0), 225);
    EXPECT_EQ(policy.DelayBefore(2, 1.0), 375);
    EXPECT_EQ(policy.DelayBefore(2, 7.0), 375);
}

TEST(RetryPolicy, NeverExceedsTheLongestPromise)
{
    RetryPolicy policy;
    policy.longestPromise = 500;
    EXPECT_EQ(policy.DelayBefore(40, 0.5), 500);
}

} // namespace
} // namespace componentlibrary
