#include "EnvSvcs/EnvService.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"
#include "ResponseHandlers/LegendsResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"
#include "ResponseHandlers/ProjectComponentResponseHandler.h"
#include "ResponseHandlers/ProjectComponentsResponseHandler.h"
#include "TarnNuqService/EnvSvcs/EnvServiceAccess.h"
#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"

#include <gtest/gtest.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;

/// How to get a thumbnail out of a handler: a payload with the path "a.png", and where its URL stands in the result.
template <typename Handler>
struct Thumbnail;

template <>
struct Thumbnail<ProjectComponentResponseHandler>
{
    static QByteArray Payload() { return R"({"thumbnail":"a.png"})"; }
    static std::wstring Url(const RecordPtr<IProjectComponent>& result) { return result->Thumbnail; }
};

template <>
struct Thumbnail<ProjectComponentsResponseHandler>
{
    static QByteArray Payload() { return R"([{"thumbnail":"a.png"}])"; }
    static std::wstring Url(const RecordList<IProjectComponent>& result) { return result.at(0)->Thumbnail; }
};

template <>
struct Thumbnail<PagedProjectComponentsResponseHandler>
{
    static QByteArray Payload() { return R"({"list":[{"thumbnail":"a.png"}]})"; }
    static std::wstring Url(const RecordPage<IProjectComponent>& result) { return result.List.at(0)->Thumbnail; }
};

template <>
struct Thumbnail<DetailedProjectComponentResponseHandler>
{
    static QByteArray Payload() { return R"({"thumbnailSizes":[{"size":"1","thumbnails":["a.png"]}]})"; }
    static std::wstring Url(const RecordPtr<IDetailedProjectComponent>& result)
    {
        return result->Thumbnails.at(L"1").at(0);
    }
};

template <>
struct Thumbnail<LegendsResponseHandler>
{
    static QByteArray Payload() { return R"([{"thumbnail":"a.png"}])"; }
    static std::wstring Url(const RecordList<ILegend>& result) { return result.at(0)->Thumbnail; }
};

template <>
struct Thumbnail<PagedLegendsResponseHandler>
{
    static QByteArray Payload() { return R"({"list":[{"thumbnail":"a.png"}]})"; }
    static std::wstring Url(const RecordPage<ILegend>& result) { return result.List.at(0)->Thumbnail; }
};

/// A host whose environment is configured only when the test says so.
template <typename Handler>
class StaticEndPointTest : public testing::Test
{
protected:
    StaticEndPointTest() { host.appService.appDir = folder.AppDir(); }

    void Configure(const QString& staticEndPoint)
    {
        folder.WriteEndPoints(QStringLiteral("http://api.example"), staticEndPoint);
        EnvServiceAccess::ReadFilesAgain();
    }

    std::wstring Url(Handler& handler)
    {
        server.On("/reply", ScriptedResponse::Json(SuccessBody(Thumbnail<Handler>::Payload())));
        std::wstring error;
        const auto result = handler.Handle(fetcher.Get(server.Url(QStringLiteral("/reply"))).get(), error);
        EXPECT_EQ(error, L"");
        return Thumbnail<Handler>::Url(result);
    }

    EnvironmentFolder folder;
    RecordingHost host;
    LoopbackServer server;
    ReplyFetcher fetcher;
};

using Handlers = testing::Types<ProjectComponentResponseHandler, ProjectComponentsResponseHandler,
    PagedProjectComponentsResponseHandler, DetailedProjectComponentResponseHandler, LegendsResponseHandler,
    PagedLegendsResponseHandler>;
TYPED_TEST_SUITE(StaticEndPointTest, Handlers);

TYPED_TEST(StaticEndPointTest, EmptyEndPointLeavesALeadingSlash)
{
    TypeParam handler;
    EXPECT_EQ(this->Url(handler), L"/a.png");
}

TYPED_TEST(StaticEndPointTest, IsReadOnceWhenTheHandlerIsMade)
{
    TypeParam before;
    this->Configure(QStringLiteral("http://static.example/res"));
    TypeParam after;
    EXPECT_EQ(this->Url(before), L"/a.png");
    EXPECT_EQ(this->Url(after), L"http://static.example/res/a.png");
}

TYPED_TEST(StaticEndPointTest, IsCopiedWithTheHandler)
{
    TypeParam before;
    this->Configure(QStringLiteral("http://static.example/res"));
    TypeParam after;
    TypeParam copy(before);
    EXPECT_EQ(this->Url(copy), L"/a.png");
    copy = after;
    EXPECT_EQ(this->Url(copy), L"http://static.example/res/a.png");
}

TYPED_TEST(StaticEndPointTest, SlashAtItsEndIsKept)
{
    this->Configure(QStringLiteral("http://static.example/res/"));
    TypeParam handler;
    EXPECT_EQ(this->Url(handler), L"http://static.example/res//a.png");
}

TYPED_TEST(StaticEndPointTest, PlaceMarkersInItAreFilledWithThePath)
{
    this->Configure(QStringLiteral("http://static.example/%1/x"));
    TypeParam handler;
    // Filled one after the other, the path goes into the lowest marker there is then: the endpoint's own.
    EXPECT_EQ(this->Url(handler), L"http://static.example/a.png/x/%2");
}

} // namespace
