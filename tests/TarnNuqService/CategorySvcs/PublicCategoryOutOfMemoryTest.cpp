#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"
#include "support/AllocationFailure.h"
#include "support/ReplyFetcher.h"

using testsupport::AllocationFailure;
using testsupport::CategoryBody;
using testsupport::CountsOf;
using testsupport::IdsOf;
using testsupport::LogRecord;
using testsupport::ScriptedResponse;

namespace {

using Ids = std::vector<int>;

constexpr int LongLength = 5000;

class PublicCategoryOutOfMemoryTest : public testsupport::PublicCategoryFixture
{
protected:
    /// A reply to be handled by hand.
    testsupport::FinishedReply Answer(const QByteArray& body, int status = 200)
    {
        server.Enqueue(ScriptedResponse::Json(body, status));
        return testsupport::ReplyFetcher().Get(server.Url());
    }

    /// Has an answer handled by a new service while the nth allocation fails.
    /// @return whether there was an nth allocation
    bool HandleWithFailure(const QByteArray& loaded, const QByteArray& body, int status, std::size_t nth)
    {
        access = std::make_unique<tarnnuq::PublicCategoryServiceAccess>();
        if (!loaded.isEmpty()) {
            access->Handle(*Answer(loaded));
        }
        int times = 0;
        QObject::connect(&Service(), &tarnnuq::PublicCategoryService::OnCategoriesUpdated, [&times] { ++times; });
        const testsupport::FinishedReply reply = Answer(body, status);
        host.logger.Clear();
        const AllocationFailure failure = AllocationFailure::OfAnySize(nth);
        EXPECT_NO_THROW(access->Handle(*reply)) << "allocation " << nth;
        EXPECT_EQ(times, 1) << "allocation " << nth;
        return failure.Happened();
    }
};

const QByteArray ThreeCategories = CategoryBody(
    {{1, 0, 3, 10, "the first of three"}, {2, 0, 1, 20, "the second one"}, {3, 0, 2, 30, "the third of three"}});

} // namespace

TEST_F(PublicCategoryOutOfMemoryTest, AFirstLoadThatFailsIsToldAndLeftToTheNext)
{
    const QByteArray body = CategoryBody({{1, 0, 0, 10}, {2, 0, 1, 20, QByteArray(LongLength, 'x')}, {3, 0, 2, 30}});
    {
        const AllocationFailure outOfMemory((LongLength + 1) * sizeof(wchar_t));
        EXPECT_TRUE(Request(ScriptedResponse::Json(body)).isEmpty());
        EXPECT_TRUE(outOfMemory.Happened());
    }
    EXPECT_EQ(host.logger.RecordsOf(LogRecord::Operation::Error),
        (std::vector<LogRecord>{
            {LogRecord::Operation::Error, {QStringLiteral("category reply not applied in full.")}}}));
    EXPECT_EQ(IdsOf(Request(ScriptedResponse::Json(body))), (Ids{1, 2, 3}));
}

TEST_F(PublicCategoryOutOfMemoryTest, AFirstLoadIsWholeOrNotThere)
{
    std::size_t failures = 0;
    for (std::size_t nth = 1; HandleWithFailure({}, ThreeCategories, 200, nth); ++nth) {
        const Ids ids = IdsOf(access->Categories());
        failures += ids.empty() ? 1 : 0;
        EXPECT_TRUE(ids.empty() || ids == (Ids{2, 3, 1})) << "allocation " << nth;
    }
    EXPECT_GT(failures, 0U);
    EXPECT_EQ(IdsOf(access->Categories()), (Ids{2, 3, 1}));
}

TEST_F(PublicCategoryOutOfMemoryTest, ARefreshHasTheNewCountsOrNone)
{
    const QByteArray counts = CategoryBody({{1, 0, 0, 11}, {2, 0, 0, 22}, {3, 0, 0, 33}});
    for (std::size_t nth = 1; HandleWithFailure(ThreeCategories, counts, 200, nth); ++nth) {
        EXPECT_EQ(IdsOf(access->Categories()), (Ids{2, 3, 1})) << "allocation " << nth;
        const std::vector<int> found = CountsOf(access->Categories());
        EXPECT_TRUE(found == std::vector<int>(3) || found == (std::vector<int>{22, 33, 11})) << "allocation " << nth;
    }
    EXPECT_EQ(CountsOf(access->Categories()), (std::vector<int>{22, 33, 11}));
}

TEST_F(PublicCategoryOutOfMemoryTest, AFailedRefreshSetsTheCountsToZeroAllTheSame)
{
    for (std::size_t nth = 1; HandleWithFailure(ThreeCategories, "{}", 500, nth); ++nth) {
        EXPECT_EQ(CountsOf(access->Categories()), std::vector<int>(3)) << "allocation " << nth;
    }
    EXPECT_EQ(CountsOf(access->Categories()), std::vector<int>(3));
}
