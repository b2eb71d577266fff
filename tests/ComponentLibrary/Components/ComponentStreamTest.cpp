#include "Components/ComponentStream.h"

#include "Records/IProjectComponent.h"
#include "support/CatalogueFixture.h"

namespace componentlibrary {
namespace {

using testsupport::ScriptedResponse;
using testsupport::WaitFor;

QByteArray Page(const QList<int>& ids, int total)
{
    QByteArray list;
    for (const int id : ids)
        list += (list.isEmpty() ? "" : ",") + QByteArray("{\"id\":\"") + QByteArray::number(id) + "\"}";
    return Envelope("{\"totalCount\":" + QByteArray::number(total) + ",\"list\":[" + list + "]}");
}

class ComponentStreamTest : public CatalogueFixture
{
protected:
    void OnAnswer(int page, const ScriptedResponse& response)
    {
        server.On(
            "/v1/components?category_code=&keyword=&page=" + QByteArray::number(page) + "&page_size=" + "2", response);
    }

    void OnPage(int page, const QList<int>& ids, int total)
    {
        OnAnswer(page, ScriptedResponse::Json(Page(ids, total)));
    }

    std::unique_ptr<ComponentStream> Make()
    {
        ComponentQuery query;
        query.pageSize = 2;
        auto stream = std::make_unique<ComponentStream>(TheCatalogue(), query);
        QObject::connect(stream.get(), &ComponentStream::Finished, stream.get(), [this] { ++ends; });
        return stream;
    }

    /// Takes every page at once; the ids in the order of arrival, pages separated by "|".
    std::string ListAll(ComponentStream& stream)
    {
        std::string ids;
        QObject::connect(&stream, &ComponentStream::PageReady, &stream, [&ids, &stream] {
            for (const auto& component : stream.TakePage())
                ids += QString::fromStdWString(component->Id).toStdString() + " ";
            ids += "|";
            stream.Next();
        });
        stream.Next();
        EXPECT_TRUE(WaitFor([&stream] { return stream.HasEnded(); }));
        QCoreApplication::processEvents();
        EXPECT_EQ(ends, 1);
        return ids;
    }
};

TEST_F(ComponentStreamTest, ListsEveryPageOnce)
{
    OnPage(1, {1, 2}, 5);
    OnPage(2, {3, 4}, 5);
    OnPage(3, {5}, 5);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |3 4 |5 |");
    EXPECT_FALSE(stream->Error().IsError());
    EXPECT_EQ(stream->Summary().delivered, 5);
    EXPECT_EQ(stream->Summary().totalCount, 5);
    EXPECT_FALSE(stream->Summary().hasChanged);
    EXPECT_EQ(server.Requests().size(), 3u);
}

TEST_F(ComponentStreamTest, AsksForNoPageBeyondAFullLastOne)
{
    OnPage(1, {1, 2}, 4);
    OnPage(2, {3, 4}, 4);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |3 4 |");
    EXPECT_EQ(server.Requests().size(), 2u);
}

TEST_F(ComponentStreamTest, EndsAtOnceWhenThereIsNothing)
{
    OnPage(1, {}, 0);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "");
    EXPECT_FALSE(stream->Error().IsError());
}

TEST_F(ComponentStreamTest, ShowsAComponentOnceThatMovesToALaterPage)
{
    // 0 was added in front while page 1 was shown: everything moves by one place.
    OnPage(1, {1, 2}, 5);
    OnPage(2, {2, 3}, 6);
    OnPage(3, {4, 5}, 6);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |3 |4 5 |");
    EXPECT_TRUE(stream->Summary().hasChanged);
    EXPECT_EQ(stream->Summary().delivered, 5);
}

TEST_F(ComponentStreamTest, ReportsAListThatIsShorterThanAnnounced)
{
    OnPage(1, {1, 2}, 5);
    OnPage(2, {3}, 5);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |3 |");
    EXPECT_EQ(stream->Error().code, ErrorCode::ServerIncompleteList);
    EXPECT_EQ(stream->Error().evidence, (QStringList{QStringLiteral("announced: 5"), QStringLiteral("received: 3")}));
}

TEST_F(ComponentStreamTest, ReportsAnEmptyPageBeforeTheEnd)
{
    OnPage(1, {1, 2}, 5);
    OnPage(2, {}, 5);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |");
    EXPECT_EQ(stream->Error().code, ErrorCode::ServerIncompleteList);
}

TEST_F(ComponentStreamTest, TakesAShrunkListForComplete)
{
    OnPage(1, {1, 2}, 5);
    OnPage(2, {}, 2);
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |");
    EXPECT_FALSE(stream->Error().IsError());
    EXPECT_TRUE(stream->Summary().hasChanged);
}

TEST_F(ComponentStreamTest, KeepsThePagesBeforeAnError)
{
    settings.retry.tries = 1;
    OnPage(1, {1, 2}, 5);
    OnAnswer(2, ScriptedResponse::Status(500));
    const auto stream = Make();
    EXPECT_EQ(ListAll(*stream), "1 2 |");
    EXPECT_EQ(stream->Error().code, ErrorCode::ServerFault);
    EXPECT_EQ(stream->Error().operation, Operation::LoadComponents);
}

TEST_F(ComponentStreamTest, FetchesOnePageAheadAndNoMore)
{
    OnPage(1, {1, 2}, 8);
    OnPage(2, {3, 4}, 8);
    OnPage(3, {5, 6}, 8);
    const auto stream = Make();
    int pages = 0;
    QObject::connect(stream.get(), &ComponentStream::PageReady, stream.get(), [&pages] { ++pages; });
    stream->Next();
    ASSERT_TRUE(WaitFor([&pages] { return pages == 1; }));
    ASSERT_TRUE(WaitFor([this] { return server.Requests().size() == 2; })) << "the next page is on its way";
    EXPECT_FALSE(WaitFor([this] { return server.Requests().size() > 2; }, std::chrono::milliseconds(150)));
    EXPECT_EQ(pages, 1) << "no page is handed out unasked";
    stream->Next();
    ASSERT_TRUE(WaitFor([&pages] { return pages == 2; }));
    EXPECT_TRUE(WaitFor([this] { return server.Requests().size() == 3; }));
}

TEST_F(ComponentStreamTest, CanBeCancelledWhileItLoadsAndWhileItWaits)
{
    OnPage(1, {1, 2}, 8);
    OnAnswer(2, ScriptedResponse::Status(200).CutAt(
                    ScriptedResponse::CutPoint::BeforeHeaders, ScriptedResponse::CutAction::Stall));
    const auto stream = Make();
    int pages = 0;
    QObject::connect(stream.get(), &ComponentStream::PageReady, stream.get(), [&pages] { ++pages; });
    stream->Next();
    ASSERT_TRUE(WaitFor([&pages] { return pages == 1; }));
    stream->Cancel();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(stream->Error().code, ErrorCode::Cancelled);
    stream->Next();
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 1);
}

TEST_F(ComponentStreamTest, CanBeCancelledBetweenTwoPages)
{
    OnPage(1, {1, 2}, 3);
    OnPage(2, {3}, 3);
    const auto stream = Make();
    int pages = 0;
    QObject::connect(stream.get(), &ComponentStream::PageReady, stream.get(), [&pages] { ++pages; });
    stream->Next();
    ASSERT_TRUE(WaitFor([&] { return pages == 1 && server.Requests().size() == 2; }));
    ASSERT_FALSE(WaitFor([&pages] { return pages > 1; }, std::chrono::milliseconds(100)));
    stream->Cancel();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(stream->Error().code, ErrorCode::Cancelled);
}

TEST(PageWindow, RemembersThreePagesAndForgetsOlderOnes)
{
    PageWindow window;
    window.BeginPage();
    EXPECT_TRUE(window.Add(L"a"));
    EXPECT_FALSE(window.Add(L"a"));
    window.BeginPage();
    window.BeginPage();
    EXPECT_FALSE(window.Add(L"a"));
    window.BeginPage();
    EXPECT_TRUE(window.Add(L"a"));
}

} // namespace
} // namespace componentlibrary
