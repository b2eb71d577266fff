#include "Sessions/Base64.h"
#include "Sessions/SessionReplay.h"
#include "nuq-cloud/support/TestServer.h"

#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace cloudtest {
namespace {

struct Exchange
{
    std::string target;
    std::vector<std::string> headers;
    std::string method = "GET";
};

/// Everything a session can hold: pages, errors, files, parts, compression, ordered faults, repeated requests.
const std::vector<Exchange> kSession = {{"/api/v3/categories", {kToken}},
    {"/api/v3/categories", {kToken, "Accept-Encoding: gzip"}}, {"/api/v3/categories", {kToken, "Accept-Language: zh"}},
    {"/api/v1/components?keyword=%E6%B3%B5&page_size=2", {kToken}}, {"/api/v1/projects", {}},
    {"/api/v1/projects", {kToken, "X-Nuq-Fault: rate-limit=3"}}, {"/api/v1/projects", {kToken}},
    {"/api/v1/projects", {kToken, "X-Request-Id: mine"}}, {"/api/v1/projects", {kToken, "X-Nuq-Fault: invalid-utf8"}},
    {"/api/v1/projects", {kToken, "X-Nuq-Fault: huge-body=100000"}}, {"/api/v1/projects", {kToken}, "HEAD"},
    {"/api/v1/projects", {kToken}, "POST"}, {"/api/none", {kToken}}, {"/static/thumbnails/pump/128.png", {}},
    {"/static/thumbnails/pump/128.png", {"Range: bytes=0-9"}}, {"/static/none.png", {}}};

class Session : public ::testing::Test
{
protected:
    static std::string Play(int port)
    {
        std::string bytes;
        for (const Exchange& exchange : kSession) {
            const RawReply reply = Fetch(port, exchange.target, exchange.headers, exchange.method);
            bytes += reply.head + reply.body;
        }
        return bytes;
    }

    /// Plays the session on a server that records and returns all it answered.
    std::string Record() const
    {
        nuqcloud::ServerSettings settings = WithFaults();
        settings.recordFile = m_file;
        const TestServer server(settings);
        return Play(server.Port());
    }

    nuqcloud::ServerSettings Replay() const
    {
        nuqcloud::ServerSettings settings;
        settings.replayFile = m_file;
        return settings;
    }

    std::string ReadRecording() const
    {
        std::ostringstream text;
        text << std::ifstream(m_file, std::ios::binary).rdbuf();
        return text.str();
    }

    std::string ErrorOf(const std::string& recording) const
    {
        std::ofstream(m_file, std::ios::binary) << recording;
        try {
            nuqcloud::SessionReplay replay(m_file);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "no error";
    }

    QTemporaryDir m_folder;
    const std::string m_file = m_folder.filePath(QStringLiteral("session.ndjson")).toStdString();
};

TEST_F(Session, IsReplayedByteForByte)
{
    const std::string recorded = Record();
    const TestServer server(Replay());
    EXPECT_EQ(Play(server.Port()), recorded);
}

TEST_F(Session, NeedsNoLibraryForTheReplay)
{
    Record();
    nuqcloud::NuqCloudServer server(Replay());
    EXPECT_EQ(Fetch(server.Start(0), "/api/v1/projects", {kToken}).Status(), 401) << "the first answer recorded";
}

TEST_F(Session, RepeatsTheLastReplyToARequest)
{
    Record();
    const TestServer server(Replay());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Fetch(server.Port(), "/api/none", {kToken}).Status(), 404);
    }
}

TEST_F(Session, KnowsNothingThatWasNotAsked)
{
    Record();
    const TestServer server(Replay());
    const RawReply reply = server.Api("/v1/components/1000");
    EXPECT_EQ(reply.Status(), 404);
    EXPECT_EQ(reply.body,
        R"({"code":"NOT_RECORDED","message":"This request was not made in the recorded session.","data":null})");
}

TEST_F(Session, HoldsNoSecret)
{
    {
        nuqcloud::ServerSettings settings;
        settings.recordFile = m_file;
        const TestServer server(settings);
        server.Api("/v1/projects?access_token=query-secret");
    }
    EXPECT_EQ(ReadRecording().find("demo-token"), std::string::npos);
    EXPECT_EQ(ReadRecording().find("query-secret"), std::string::npos);
    EXPECT_NE(ReadRecording().find("access_token=***"), std::string::npos);
}

TEST_F(Session, IsRefusedWithTheLineThatIsNotARecording)
{
    const auto message = [this](int line) {
        return "Line " + std::to_string(line) + " of \"" + m_file +
               "\" is not what nuq-cloud --record writes; record the session again.";
    };
    Record();
    const std::string recording = ReadRecording();
    EXPECT_EQ(ErrorOf(recording), "no error");
    EXPECT_EQ(ErrorOf(""), message(1));
    EXPECT_EQ(ErrorOf("{}\n"), message(1));
    EXPECT_EQ(ErrorOf(recording + "{}\n"), message(static_cast<int>(kSession.size()) + 2));
    EXPECT_EQ(ErrorOf(recording.substr(0, recording.size() - 20)), message(static_cast<int>(kSession.size()) + 1));
}

TEST_F(Session, IsRefusedWhenItsFileCannotBeUsed)
{
    nuqcloud::ServerSettings settings;
    settings.recordFile = "/nowhere/session";
    EXPECT_THROW(TestServer server(settings), std::runtime_error);
    EXPECT_THROW(nuqcloud::SessionReplay replay("/nowhere/session"), std::runtime_error);
}

TEST(Base64, IsUndoneForEveryLength)
{
    std::string bytes;
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(nuqcloud::DecodeBase64(nuqcloud::EncodeBase64(bytes)), bytes);
        bytes.push_back(static_cast<char>(i));
    }
    EXPECT_EQ(nuqcloud::EncodeBase64("ab"), "YWI=");
    EXPECT_THROW(nuqcloud::DecodeBase64("YWI"), std::invalid_argument);
    EXPECT_THROW(nuqcloud::DecodeBase64("Y*I="), std::invalid_argument);
}

} // namespace
} // namespace cloudtest
