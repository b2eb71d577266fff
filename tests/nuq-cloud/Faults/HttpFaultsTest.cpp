#include "nuq-cloud/support/TestServer.h"

#include <chrono>
#include <gtest/gtest.h>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

namespace cloudtest {
namespace {

using Json = nlohmann::json;

const std::string kTruth = R"({"code":"success","message":"","data":[{"id":"p1","name":"Project one"},)"
                           R"({"id":"p2","name":"Empty project"}]})";
const std::string kHtml = "<!DOCTYPE html>\n<html><head><title>Gateway</title></head>"
                          "<body><h1>Something stands between you and the server.</h1></body></html>\n";

class HttpFaults : public ::testing::Test
{
protected:
    RawReply Ask(const std::string& fault, const std::string& path = "/v1/projects",
        const std::vector<std::string>& further = {}) const
    {
        std::vector<std::string> headers = further;
        headers.push_back("X-Nuq-Fault: " + fault);
        return m_server.Api(path, headers);
    }

    const TestServer m_server{WithFaults()};
};

TEST_F(HttpFaults, AnswerWithAStatusAndAnEnvelope)
{
    const RawReply reply = Ask("status=418");
    EXPECT_EQ(reply.Status(), 418);
    EXPECT_EQ(reply.body, R"({"code":"INJECTED_FAULT","message":"This error was ordered.","data":null})");
}

TEST_F(HttpFaults, AnswerWithAStatusAndNoBody)
{
    const RawReply reply = Ask("status-empty=404");
    EXPECT_EQ(reply.Status(), 404);
    EXPECT_EQ(reply.Header("Content-Length"), "0");
    EXPECT_EQ(reply.Header("Content-Type"), "");
}

TEST_F(HttpFaults, AnswerWithAPageInsteadOfJson)
{
    EXPECT_EQ(Ask("status-html=502").Status(), 502);
    EXPECT_EQ(Ask("status-html").body, kHtml);
    const RawReply reply = Ask("html");
    EXPECT_EQ(reply.Status(), 200);
    EXPECT_EQ(reply.body, kHtml);
    EXPECT_EQ(reply.Header("Content-Type"), "text/html; charset=utf-8");
}

TEST_F(HttpFaults, RefuseAsForAWrongTokenAndAForbiddenOne)
{
    const RawReply refused = Ask("unauthorized");
    EXPECT_EQ(refused.Status(), 401);
    EXPECT_EQ(refused.Header("WWW-Authenticate"), "Token realm=\"nuq-cloud\"");
    EXPECT_EQ(Fetch(m_server.Port(), "/qa/api/v1/projects", {"X-Nuq-Fault: unauthorized"}).Header("WWW-Authenticate"),
        "Bearer realm=\"nuq-cloud qa\"");
    const RawReply forbidden = Ask("forbidden");
    EXPECT_EQ(forbidden.Status(), 403);
    EXPECT_EQ(forbidden.body, R"({"code":"FORBIDDEN","message":"You are not allowed to see this.","data":null})");
}

TEST_F(HttpFaults, LimitTheRateInSeconds)
{
    const RawReply reply = Ask("rate-limit=17");
    EXPECT_EQ(reply.Status(), 429);
    EXPECT_EQ(reply.Header("Retry-After"), "17");
    EXPECT_EQ(reply.body, R"({"code":"RATE_LIMITED","message":"Too many requests.","data":null})");
    EXPECT_EQ(Ask("unavailable=9").Status(), 503);
    EXPECT_EQ(Ask("unavailable=9").Header("Retry-After"), "9");
}

TEST_F(HttpFaults, LimitTheRateUntilADate)
{
    const std::string text = Ask("rate-limit-date=3600").Header("Retry-After");
    std::tm parts{};
    std::istringstream(text) >> std::get_time(&parts, "%a, %d %b %Y %H:%M:%S GMT");
    const auto left = ::timegm(&parts) - std::time(nullptr);
    EXPECT_GT(left, 3590) << text;
    EXPECT_LE(left, 3600) << text;
}

TEST_F(HttpFaults, RedirectElsewhereAndInALoop)
{
    const RawReply elsewhere = Ask("redirect=http://127.0.0.1:1/x");
    EXPECT_EQ(elsewhere.Status(), 302);
    EXPECT_EQ(elsewhere.Header("Location"), "http://127.0.0.1:1/x");
    EXPECT_EQ(elsewhere.body, kHtml);
    EXPECT_EQ(Ask("redirect-loop", "/v1/components?page=2").Header("Location"), "/api/v1/components?page=2");
}

TEST_F(HttpFaults, AnswerWithoutWhatWasAskedFor)
{
    EXPECT_EQ(Ask("empty").Status(), 200);
    EXPECT_EQ(Ask("empty").body, "");
    EXPECT_EQ(Ask("no-content").Status(), 204);
    EXPECT_EQ(Ask("no-content").body, "");
    EXPECT_EQ(Ask("not-modified").Status(), 304);
    EXPECT_EQ(Ask("null-data").body, R"({"code":"success","message":"","data":null})");
}

TEST_F(HttpFaults, SendPartOfTheBodyAs206)
{
    const RawReply reply = Ask("partial");
    const std::size_t half = kTruth.size() / 2;
    EXPECT_EQ(reply.Status(), 206);
    EXPECT_EQ(reply.body, kTruth.substr(0, half));
    EXPECT_EQ(
        reply.Header("Content-Range"), "bytes 0-" + std::to_string(half - 1) + '/' + std::to_string(kTruth.size()));
}

TEST_F(HttpFaults, SendRightBodiesUnderWrongLabels)
{
    EXPECT_EQ(Ask("content-type=image/png").Header("Content-Type"), "image/png");
    EXPECT_EQ(Ask("content-type").Header("Content-Type"), "text/plain");
    EXPECT_EQ(Ask("content-type").body, kTruth);
    const RawReply gzip = Ask("broken-gzip", "/v3/categories", {"Accept-Encoding: gzip"});
    EXPECT_EQ(gzip.Header("Content-Encoding"), "gzip");
    EXPECT_EQ(gzip.body, m_server.ApiText("/v3/categories"));
}

TEST_F(HttpFaults, TruncateJsonUnderARightLength)
{
    const RawReply reply = Ask("truncated-json");
    EXPECT_EQ(reply.Status(), 200);
    EXPECT_EQ(reply.body, kTruth.substr(0, kTruth.size() / 2));
    EXPECT_EQ(Ask("truncated-json", "/v3/categories", {"Accept-Encoding: gzip"}).Text(),
        m_server.ApiText("/v3/categories").substr(0, m_server.ApiText("/v3/categories").size() / 2));
}

TEST_F(HttpFaults, SendBodiesThatAreNotWhatTheySeem)
{
    EXPECT_FALSE(Json::accept(Ask("invalid-json").body));
    EXPECT_EQ(Ask("invalid-utf8").body.substr(0, 35), "{\"code\":\"success\",\"message\":\"\xC3\x28\xFF\",\"");
    EXPECT_TRUE(Json::parse(Ask("array").body).is_array());
    EXPECT_EQ(Ask("duplicate-keys").body, R"({"code":"success","message":"","data":null,"code":"FAILED","data":[]})");
    EXPECT_EQ(Ask("not-success=QUOTA").body,
        R"({"code":"QUOTA","message":"The request was understood but not carried out.","data":null})");
    EXPECT_EQ(Ask("not-success").Status(), 200);
    EXPECT_EQ(Ask("deep=4").body, R"({"code":"success","message":"","data":[[[[]]]]})");
}

TEST_F(HttpFaults, SendBodiesOfAnySize)
{
    for (const std::size_t size : {64U, 65536U, 65537U, 3000000U}) {
        const std::string body = Ask("huge-body=" + std::to_string(size)).body;
        EXPECT_EQ(body.size(), size);
        EXPECT_EQ(Json::parse(body).at("code"), "success");
    }
}

TEST_F(HttpFaults, PromiseASizeThatNobodyWantsToHold)
{
    RawClient client(m_server.Port());
    client.Send(Request("/api/v1/projects", {"X-Nuq-Fault: huge-body=1000000000000"}, "HEAD"));
    EXPECT_EQ(client.ReadReply(false).Header("Content-Length"), "1000000000000");
}

TEST_F(HttpFaults, MiscountCategoriesAndTotals)
{
    const Json right = Json::parse(m_server.ApiText("/v3/categories")).at("data");
    const Json wrong = Json::parse(Ask("wrong-counts=-2", "/v3/categories").body).at("data");
    for (std::size_t i = 0; i < right.size(); ++i) {
        EXPECT_EQ(wrong.at(i).at("count").get<int>(), right.at(i).at("count").get<int>() - 2);
    }
    for (const char* path : {"/v1/components", "/v1/projects/p1/components",
             "/v1/metadata/placeholders?category_code=P.1.1", "/v1/components?keyword=pump"}) {
        const Json page = Json::parse(m_server.ApiText(path)).at("data");
        const Json miscounted = Json::parse(Ask("wrong-counts", path).body).at("data");
        EXPECT_EQ(miscounted.at("totalCount").get<int>(), page.at("totalCount").get<int>() + 1000) << path;
        EXPECT_EQ(miscounted.at("list"), page.at("list"));
    }
}

TEST_F(HttpFaults, ChangeTheCatalogueBetweenPages)
{
    const std::string second = "/v1/components?page=2&page_size=2";
    const Json before = Json::parse(m_server.ApiText(second)).at("data");
    const Json after = Json::parse(Ask("changed-catalogue", second).body).at("data");
    EXPECT_EQ(before.at("list").at(1).at("id"), after.at("list").at(0).at("id")) << "items moved up by one";
    EXPECT_EQ(after.at("totalCount").get<int>(), before.at("totalCount").get<int>() - 1);
    EXPECT_EQ(after.at("list").at(0).at("version").get<int>(), before.at("list").at(0).at("version").get<int>() + 1);
}

TEST_F(HttpFaults, TellAWrongDate)
{
    EXPECT_EQ(m_server.Api("/v1/projects").Header("Date"), "Tue, 14 Nov 2023 22:13:20 GMT");
    EXPECT_EQ(Ask("wrong-date=-86400").Header("Date"), "Mon, 13 Nov 2023 22:13:20 GMT");
    EXPECT_EQ(Ask("wrong-date,status=500").Header("Date"), "Wed, 13 Nov 2024 22:13:20 GMT");
}

TEST_F(HttpFaults, ReachFilesToo)
{
    const RawReply reply =
        Fetch(m_server.Port(), "/static/thumbnails/pump/128.png", {"X-Nuq-Fault: content-type=text/html"});
    EXPECT_EQ(reply.Header("Content-Type"), "text/html");
    EXPECT_EQ(reply.body.size(), 1000U);
}

TEST_F(HttpFaults, ExplainAFaultThatIsNotKnown)
{
    const RawReply reply = Ask("bogus");
    EXPECT_EQ(reply.Status(), 400);
    EXPECT_EQ(reply.body, R"({"code":"INVALID_FAULT","message":"There is no fault \"bogus\"; )"
                          R"(nuq-cloud --help lists those there are.","data":null})");
}

TEST(HttpFaultsThatAreNotAllowed, ChangeNothing)
{
    const TestServer server;
    for (const char* fault : {"status=500", "bogus", "huge-body=1000000000000"}) {
        EXPECT_EQ(server.Api("/v1/projects", {std::string("X-Nuq-Fault: ") + fault}).body, kTruth) << fault;
    }
}

} // namespace
} // namespace cloudtest
