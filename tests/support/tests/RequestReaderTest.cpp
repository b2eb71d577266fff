#include "support/RequestReader.h"

#include <gtest/gtest.h>

using testsupport::ReceivedRequest;
using testsupport::RequestReader;

namespace {

const QByteArray Post("POST /a%20b?x=1?y HTTP/1.1\r\nHost: h\r\nContent-Length: 4\r\nX-Empty:\r\nx-twice: 1\r\n"
                      "X-TWICE:  2 \r\n\r\nbody");

ReceivedRequest ReadPost()
{
    RequestReader reader;
    reader.Feed(Post);
    return reader.Next().value();
}

} // namespace

TEST(AReceivedRequest, ShowsItsFirstLineAndBody)
{
    const ReceivedRequest request = ReadPost();
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.target, "/a%20b?x=1?y");
    EXPECT_EQ(request.version, "HTTP/1.1");
    EXPECT_EQ(request.body, "body");
}

TEST(AReceivedRequest, SplitsItsTargetAtTheFirstQuestionMark)
{
    EXPECT_EQ(ReadPost().Path(), "/a%20b");
    EXPECT_EQ(ReadPost().Query(), "x=1?y");
    ReceivedRequest plain;
    plain.target = "/path";
    EXPECT_EQ(plain.Path(), "/path");
    EXPECT_EQ(plain.Query(), "");
}

TEST(AReceivedRequest, FindsHeadersWithoutCase)
{
    EXPECT_EQ(ReadPost().Header("HOST"), "h");
    EXPECT_EQ(ReadPost().Header("X-Twice"), "1");
    EXPECT_EQ(ReadPost().HeaderCount("X-Twice"), 2);
}

TEST(AReceivedRequest, TellsAnEmptyHeaderFromAMissingOne)
{
    EXPECT_EQ(ReadPost().HeaderCount("x-empty"), 1);
    EXPECT_EQ(ReadPost().Header("x-empty"), "");
    EXPECT_EQ(ReadPost().HeaderCount("x-missing"), 0);
}

TEST(ARequestReader, WaitsForEachPieceOfARequest)
{
    RequestReader reader;
    for (int i = 0; i + 1 < Post.size(); ++i) {
        reader.Feed(Post.mid(i, 1));
        ASSERT_FALSE(reader.Next().has_value()) << i;
    }
    reader.Feed(Post.right(1));
    EXPECT_EQ(reader.Next()->body, "body");
    EXPECT_FALSE(reader.Next().has_value());
}

TEST(ARequestReader, CutsRequestsThatArriveTogether)
{
    RequestReader reader;
    reader.Feed(Post + "GET /second HTTP/1.1\r\n\r\n");
    EXPECT_EQ(reader.Next()->method, "POST");
    EXPECT_EQ(reader.Next()->target, "/second");
}
