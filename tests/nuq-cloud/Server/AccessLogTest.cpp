#include "Server/AccessLog.h"

#include "nuq-cloud/support/Matches.h"
#include "nuq-cloud/support/TestServer.h"

#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>
#include <mutex>
#include <sstream>

namespace nuqcloud {
namespace {

std::chrono::system_clock::time_point Moment()
{
    return std::chrono::system_clock::time_point(std::chrono::milliseconds(1700000000123));
}

TEST(AccessLogLine, HasTimeIdMethodTargetStatusBytesAndMilliseconds)
{
    HttpExchange exchange;
    exchange.id = "r-1";
    exchange.method = "GET";
    exchange.target = "/api/v1/components?page=2";
    exchange.status = 200;
    exchange.bodyBytes = 4711;
    exchange.duration = std::chrono::microseconds(1259);
    EXPECT_EQ(
        AccessLogLine(exchange, Moment()), "2023-11-14T22:13:20.123Z r-1 GET /api/v1/components?page=2 200 4711 1.26");
}

TEST(AccessLogLine, NamesTheFaultsThatWereOrdered)
{
    HttpExchange exchange;
    exchange.method = "GET";
    exchange.target = "/";
    exchange.status = 503;
    exchange.faults = "status=503,delay=5\x1b";
    EXPECT_EQ(
        AccessLogLine(exchange, Moment()), "2023-11-14T22:13:20.123Z - GET / 503 0 0.00 fault=status=503,delay=5%1B");
}

TEST(AccessLogLine, StandsForAnUnreadableRequestToo)
{
    HttpExchange exchange;
    exchange.status = 400;
    EXPECT_EQ(AccessLogLine(exchange, Moment()), "2023-11-14T22:13:20.123Z - - - 400 0 0.00");
}

TEST(AccessLog, AppendsToItsFileAndRefusesOneThatCannotBeWritten)
{
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("日志.log")).toStdString();
    for (int i = 0; i < 2; ++i) {
        AccessLog log(file);
        log.Write(HttpExchange());
    }
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    EXPECT_TRUE(cloudtest::Matches(text.str(), "^(....-..-..T..:..:..\\....Z - - - 0 0 0\\.00\n){2}$"));
    EXPECT_THROW(AccessLog("/nowhere/access.log"), std::runtime_error);
}

TEST(Exchanges, AreReportedOnceEachWithTheBytesThatWereSent)
{
    std::mutex mutex;
    std::vector<HttpExchange> exchanges;
    ServerSettings settings;
    settings.onExchange = [&](const HttpExchange& exchange) {
        const std::lock_guard<std::mutex> lock(mutex);
        exchanges.push_back(exchange);
    };
    std::vector<cloudtest::RawReply> replies;
    {
        cloudtest::TestServer server(settings);
        replies.push_back(server.Api("/v1/components", {"Accept-Encoding: gzip", "X-Request-Id: first"}));
        replies.push_back(server.Api("/v1/components", {"X-Nuq-Fault: status=500"}, "HEAD"));
        replies.push_back(cloudtest::Fetch(server.Port(), "bad target"));
        server.Server().Stop();
    }
    ASSERT_EQ(exchanges.size(), 3U);
    EXPECT_EQ(exchanges[0].id, "first");
    EXPECT_EQ(exchanges[0].target, "/api/v1/components");
    EXPECT_EQ(exchanges[0].bodyBytes, replies[0].body.size());
    EXPECT_EQ(exchanges[1].method, "HEAD");
    EXPECT_EQ(exchanges[1].bodyBytes, 0U);
    EXPECT_EQ(exchanges[1].faults, "") << "faults are not allowed here";
    EXPECT_EQ(exchanges[2].method, "");
    EXPECT_EQ(exchanges[2].status, 400);
}

} // namespace
} // namespace nuqcloud
