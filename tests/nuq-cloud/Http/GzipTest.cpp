#include "Http/Gzip.h"

#include "nuq-cloud/support/RawClient.h"
#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

TEST(AcceptsGzip, FollowsTheHeadersNamesAndWeights)
{
    EXPECT_TRUE(AcceptsGzip("gzip"));
    EXPECT_TRUE(AcceptsGzip("deflate, GZIP;q=0.5"));
    EXPECT_TRUE(AcceptsGzip("*"));
    EXPECT_FALSE(AcceptsGzip(""));
    EXPECT_FALSE(AcceptsGzip("br, deflate"));
    EXPECT_FALSE(AcceptsGzip("gzip;q=0"));
    EXPECT_FALSE(AcceptsGzip("gzip; q=0.000"));
    EXPECT_FALSE(AcceptsGzip("notgzip"));
}

TEST(GzipCompress, LeavesShortTextsAlone)
{
    EXPECT_EQ(GzipCompress("short"), "");
}

TEST(GzipCompress, GivesTheSameBytesForTheSameText)
{
    const std::string text(10000, 'x');
    EXPECT_FALSE(GzipCompress(text).empty());
    EXPECT_EQ(GzipCompress(text), GzipCompress(text));
}

TEST(Compression, IsUsedWhenTheClientTakesItAndDecodesToTheSameText)
{
    const cloudtest::TestServer server;
    for (const char* path : {"/v3/categories", "/v3/categories?keyword=pump", "/v1/components"}) {
        const auto plain = server.Api(path);
        const auto packed = server.Api(path, {"Accept-Encoding: gzip, deflate, br"});
        EXPECT_EQ(plain.Header("Content-Encoding"), "");
        EXPECT_EQ(packed.Header("Content-Encoding"), "gzip");
        EXPECT_LT(packed.body.size(), plain.body.size());
        EXPECT_EQ(packed.Text(), plain.body);
        EXPECT_EQ(packed.Header("Vary"), "Accept-Language, Accept-Encoding");
    }
}

TEST(Compression, LeavesPicturesAlone)
{
    const cloudtest::TestServer server;
    const auto reply = cloudtest::Fetch(server.Port(), "/static/thumbnails/pump/128.png", {"Accept-Encoding: gzip"});
    EXPECT_EQ(reply.Header("Content-Encoding"), "");
    EXPECT_EQ(reply.body.size(), 1000U);
}

} // namespace
} // namespace nuqcloud
