#include "nuq-cloud/support/TestServer.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace cloudtest {
namespace {

const std::string kPicture = "/static/thumbnails/pump/128.png";

class StaticFiles : public ::testing::Test
{
protected:
    RawReply Get(const std::string& target, const std::vector<std::string>& headers = {}) const
    {
        return Fetch(m_server.Port(), target, headers);
    }

    const TestServer m_server;
};

TEST_F(StaticFiles, AreServedWithTheirType)
{
    const RawReply picture = Get(kPicture);
    EXPECT_EQ(picture.Status(), 200);
    EXPECT_EQ(picture.body, "\x89PNG" + std::string(996, 'x'));
    EXPECT_EQ(picture.Header("Content-Type"), "image/png");
    EXPECT_EQ(Get("/qa" + kPicture).body, picture.body);
    EXPECT_EQ(Get("/static/thumbnails/pump/plan.svg").Header("Content-Type"), "image/svg+xml");
}

TEST_F(StaticFiles, AreCompressedWhenTheyAreText)
{
    const RawReply packed = Get("/static/thumbnails/pump/plan.svg", {"Accept-Encoding: gzip"});
    EXPECT_EQ(packed.Header("Content-Encoding"), "gzip");
    EXPECT_EQ(packed.Text(), "<svg>" + std::string(1000, ' ') + "</svg>");
}

TEST_F(StaticFiles, MayHaveNamesOutsideAscii)
{
    m_server.Library().Write("static/泵 1.png", "picture");
    EXPECT_EQ(Get("/static/%E6%B3%B5%201.png").body, "picture");
}

TEST_F(StaticFiles, NeverLeadOutOfTheirFolder)
{
    m_server.Library().Write("secret.txt", "secret");
    for (const char* target : {"/static/../library.json", "/static/%2e%2e/library.json", "/static/..%2flibrary.json",
             "/static/thumbnails/../../library.json", "/static//library.json", "/static/./thumbnails/pump/128.png",
             "/static/%2Fetc/passwd", "/static", "/static/", "/static/thumbnails", "/static/none.png"}) {
        const RawReply reply = Get(target);
        EXPECT_EQ(reply.Status(), 404) << target;
        EXPECT_EQ(reply.body, R"({"code":"NOT_FOUND","message":"There is no such file.","data":null})") << target;
    }
}

TEST_F(StaticFiles, AreNotSentAgainWhenTheTagIsKnown)
{
    const std::string tag = Get(kPicture).Header("ETag");
    EXPECT_EQ(tag.front(), '"');
    const RawReply reply = Get(kPicture, {"If-None-Match: " + tag});
    EXPECT_EQ(reply.Status(), 304);
    EXPECT_EQ(reply.body, "");
    EXPECT_EQ(reply.Header("ETag"), tag);
    EXPECT_EQ(Get(kPicture, {"If-None-Match: \"other\""}).Status(), 200);
}

TEST_F(StaticFiles, ChangeTheirTagWithTheirContent)
{
    const std::string tag = Get(kPicture).Header("ETag");
    m_server.Library().Write("static/thumbnails/pump/128.png", "changed");
    EXPECT_NE(Get(kPicture).Header("ETag"), tag);
}

TEST_F(StaticFiles, CanBeReadInParts)
{
    const RawReply part = Get(kPicture, {"Range: bytes=0-3"});
    EXPECT_EQ(part.Status(), 206);
    EXPECT_EQ(part.body, "\x89PNG");
    EXPECT_EQ(part.Header("Content-Range"), "bytes 0-3/1000");
    EXPECT_EQ(Get(kPicture, {"Range: bytes=990-"}).body, std::string(10, 'x'));
    const RawReply behind = Get(kPicture, {"Range: bytes=1000-"});
    EXPECT_EQ(behind.Status(), 416);
    EXPECT_EQ(behind.Header("Content-Range"), "bytes */1000");
}

TEST_F(StaticFiles, AreSentWholeWhenTheyChangedSinceTheFirstPart)
{
    const std::string tag = Get(kPicture).Header("ETag");
    EXPECT_EQ(Get(kPicture, {"Range: bytes=0-3", "If-Range: " + tag}).Status(), 206);
    const RawReply whole = Get(kPicture, {"Range: bytes=0-3", "If-Range: \"old\""});
    EXPECT_EQ(whole.Status(), 200);
    EXPECT_EQ(whole.body.size(), 1000U);
}

} // namespace
} // namespace cloudtest
