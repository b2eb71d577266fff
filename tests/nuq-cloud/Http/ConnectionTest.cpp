#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>
#include <memory>

namespace cloudtest {
namespace {

const std::string kProjects = "/api/v1/projects";

std::string RefusalText(const std::string& message)
{
    return R"({"code":"BAD_REQUEST","message":")" + message + R"(","data":null})";
}

TEST(Connection, IsKeptForManyRequests)
{
    const TestServer server;
    RawClient client(server.Port());
    for (int i = 0; i < 300; ++i) {
        client.Send(Request(kProjects, {kToken}));
        ASSERT_EQ(client.ReadReply().Status(), 200) << i;
    }
}

TEST(Connection, AnswersRequestsThatWereSentTogether)
{
    const TestServer server;
    RawClient client(server.Port());
    client.Send(Request(kProjects, {kToken}) + Request("/api/nothing", {kToken}) + Request(kProjects));
    EXPECT_EQ(client.ReadReply().Status(), 200);
    EXPECT_EQ(client.ReadReply().Status(), 404);
    EXPECT_EQ(client.ReadReply().Status(), 401);
}

TEST(Connection, EndsWhenTheClientAsksForIt)
{
    const TestServer server;
    for (const char* header : {"Connection: close", "Connection: Close"}) {
        RawClient client(server.Port());
        client.Send(Request(kProjects, {kToken, header}));
        EXPECT_EQ(client.ReadReply().Header("Connection"), "close");
        EXPECT_EQ(client.ReadAll(), "");
        EXPECT_TRUE(client.WasClosed());
    }
}

TEST(Connection, EndsAfterAnOldClientsRequest)
{
    const TestServer server;
    RawClient client(server.Port());
    client.Send("GET " + kProjects + " HTTP/1.0\r\n" + kToken + "\r\n\r\n");
    EXPECT_EQ(client.ReadReply().Status(), 200);
    client.ReadAll();
    EXPECT_TRUE(client.WasClosed());
}

TEST(Connection, NeverTakesABodyForTheNextRequest)
{
    const TestServer server;
    for (const char* method : {"GET", "POST"}) {
        RawClient client(server.Port());
        const std::string hidden = Request(kProjects, {kToken});
        client.Send(Request(kProjects, {kToken, "Content-Length: " + std::to_string(hidden.size())}, method) + hidden);
        const RawReply reply = client.ReadReply();
        EXPECT_EQ(reply.Status(), std::string(method) == "GET" ? 200 : 405);
        EXPECT_EQ(reply.Header("Connection"), "close");
        EXPECT_EQ(client.ReadAll(), "") << "the body was answered";
        EXPECT_FALSE(client.WasReset()) << "the reply could have been lost";
    }
}

TEST(Connection, RefusesAChunkedUploadWithoutReadingIt)
{
    const TestServer server;
    RawClient client(server.Port());
    client.Send(Request(kProjects, {kToken, "Transfer-Encoding: chunked"}, "POST") + "5\r\nhello\r\n0\r\n\r\n");
    EXPECT_EQ(client.ReadReply().Status(), 405);
    EXPECT_EQ(client.ReadAll(), "");
}

TEST(Connection, DoesNotAskForABodyThatItWillNotRead)
{
    const TestServer server;
    RawClient client(server.Port());
    client.Send(Request(kProjects, {kToken, "Expect: 100-continue", "Content-Length: 5"}, "POST"));
    EXPECT_EQ(client.ReadReply().Status(), 405);
}

TEST(Connection, RefusesWhatIsNotHttpAndEnds)
{
    const TestServer server;
    for (const char* text :
        {"GARBAGE\r\n\r\n", "GET /\r\n\r\n", "GET / HTTP/9.9\r\n\r\n", "\r\n\r\n", "FETCH / HTTP/1.1\r\n\r\n"}) {
        RawClient client(server.Port());
        client.Send(text);
        const RawReply reply = client.ReadReply();
        EXPECT_EQ(reply.Status(), 400) << text;
        EXPECT_EQ(reply.body, RefusalText("The request line or a header could not be read, or a header is longer "
                                          "than 8192 bytes."));
        client.ReadAll();
        EXPECT_TRUE(client.WasClosed());
    }
}

TEST(Connection, RefusesLongLines)
{
    const TestServer server;
    const auto line = Fetch(server.Port(), "/api/" + std::string(9000, 'a'));
    EXPECT_EQ(line.Status(), 414);
    EXPECT_EQ(line.body, RefusalText("The request line is longer than 8192 bytes."));
    EXPECT_EQ(Fetch(server.Port(), kProjects, {"Cookie: " + std::string(9000, 'a')}).Status(), 400);
}

TEST(Connection, SurvivesClientsThatLeave)
{
    const TestServer server;
    for (int i = 0; i < 50; ++i) {
        RawClient client(server.Port());
        client.Send(i % 2 == 0 ? Request("/api/v3/categories", {kToken}) : "GET /api/v3/cat");
        client.Abort();
    }
    EXPECT_EQ(server.Api("/v1/projects").Status(), 200);
}

TEST(Connection, EchoesAWellFormedRequestIdAndMakesOneOtherwise)
{
    const TestServer server;
    EXPECT_EQ(server.Api("/v1/projects", {"X-Request-Id: abc-1.2_3"}).Header("X-Request-Id"), "abc-1.2_3");
    for (const std::string& id : {std::string("a b"), std::string("a\"b"), std::string(65, 'a')}) {
        const std::string given = server.Api("/v1/projects", {"X-Request-Id: " + id}).Header("X-Request-Id");
        EXPECT_NE(given, id);
        EXPECT_EQ(given.size(), 15U) << given;
    }
    const auto first = server.Api("/v1/projects").Header("X-Request-Id");
    EXPECT_NE(first, server.Api("/v1/projects").Header("X-Request-Id"));
}

TEST(Connection, AcceptsMoreClientsThanThereAreThreads)
{
    const TestServer server;
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 60; ++i) {
        clients.push_back(std::make_unique<RawClient>(server.Port()));
        clients.back()->Send(Request(kProjects, {kToken}));
    }
    for (const auto& client : clients) {
        EXPECT_EQ(client->ReadReply().Status(), 200);
    }
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(Fetch(server.Port(), kProjects, {kToken, "Connection: close"}).Status(), 200);
    }
}

} // namespace
} // namespace cloudtest
