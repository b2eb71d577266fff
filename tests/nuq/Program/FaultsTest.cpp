#include "support/NamedCase.h"
#include "support/NuqFixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <functional>

namespace nuqtest {
namespace {

using testsupport::ScriptedResponse;
using CutPoint = ScriptedResponse::CutPoint;
using CutAction = ScriptedResponse::CutAction;

const QByteArray kGood = Envelope("[]");

struct Fault : testsupport::NamedCase
{
    std::function<ScriptedResponse()> answer;
    int exitCode;
    const char* code;
    const char* english; ///< behind "The projects could not be loaded. "
    const char* chinese;
};

class FaultsTest : public NuqFixture, public ::testing::WithParamInterface<Fault>
{
};

// The sentence, the code and the exit code of each cause, as text and as a document, in both languages.
TEST_P(FaultsTest, AreToldApart)
{
    const Fault& fault = GetParam();
    On("/v1/projects", fault.answer());
    const NuqResult english = Run({"projects", "--json", "--timeout", "1", "--quiet"});
    EXPECT_EQ(english.code, fault.exitCode);
    EXPECT_EQ(english.out.substr(0, english.out.find(",\"details\"")), std::string("{\"code\":\"") + fault.code + "\"");
    EXPECT_EQ(english.out.back(), '\n');
    EXPECT_EQ(english.err, std::string("nuq: The projects could not be loaded. ") + fault.english + "\n");
    const NuqResult chinese = Run({"projects", "--lang", "zh", "--timeout", "1", "--quiet"});
    EXPECT_EQ(chinese.code, fault.exitCode);
    EXPECT_EQ(chinese.out, "");
    EXPECT_EQ(chinese.err, std::string("nuq: 无法加载项目。") + fault.chinese + "\n");
}

const std::vector<Fault> kFaults = {
    {"Unauthorized", [] { return ScriptedResponse::Status(401); }, 4, "auth.signed_out",
        "You are not signed in, or your sign-in has expired.", "您尚未登录，或登录已过期。"},
    {"Forbidden", [] { return ScriptedResponse::Status(403); }, 4, "auth.forbidden",
        "You are signed in but not allowed to do this.", "您已登录，但无权进行此操作。"},
    {"NotFound", [] { return ScriptedResponse::Json(R"({"code":"NOT_FOUND","message":"None here."})", 404); }, 3,
        "not_found", "The server has nothing under this name.", "服务器上没有这个名称的内容。"},
    {"AnotherServer", [] { return ScriptedResponse::Status(404); }, 6, "server.unexpected_status",
        "127.0.0.1:PORT answered with the unexpected status HTTP 404.", "127.0.0.1:PORT 以意外的状态 HTTP 404 应答。"},
    {"BadRequest",
        [] { return ScriptedResponse::Json(R"({"code":"INVALID_PARAMETER","message":"No such page."})", 400); }, 6,
        "server.rejected", "127.0.0.1:PORT rejected the request: No such page.",
        "127.0.0.1:PORT 拒绝了请求：No such page."},
    {"Rejected", [] { return ScriptedResponse::Json(R"({"code":"X","message":"\u001b[2JClosed."})"); }, 6,
        "server.rejected", "127.0.0.1:PORT rejected the request: \\x1b[2JClosed.",
        "127.0.0.1:PORT 拒绝了请求：\\x1b[2JClosed."},
    {"ServerError", [] { return ScriptedResponse::Status(500); }, 6, "server.fault",
        "127.0.0.1:PORT reports a fault of its own (HTTP 500).", "127.0.0.1:PORT 报告其内部故障（HTTP 500）。"},
    {"Unavailable", [] { return ScriptedResponse::Status(503); }, 6, "server.unavailable",
        "127.0.0.1:PORT is not available at the moment.", "127.0.0.1:PORT 暂时不可用。"},
    {"HtmlPage", [] { return ScriptedResponse::Content("<html>Sign in</html>", "text/html"); }, 6, "server.html_page",
        "127.0.0.1:PORT sent a web page instead of data.", "127.0.0.1:PORT 发来的是网页而不是数据。"},
    {"NoContent", [] { return ScriptedResponse::Status(204); }, 6, "server.empty_answer",
        "127.0.0.1:PORT sent an answer without content.", "127.0.0.1:PORT 发来的应答没有内容。"},
    {"PartialContent", [] { return ScriptedResponse::Json(kGood, 206); }, 6, "server.partial_answer",
        "127.0.0.1:PORT sent only a part of the answer.", "127.0.0.1:PORT 只发来了应答的一部分。"},
    {"Created", [] { return ScriptedResponse::Json(kGood, 201); }, 6, "server.unexpected_status",
        "127.0.0.1:PORT answered with the unexpected status HTTP 201.", "127.0.0.1:PORT 以意外的状态 HTTP 201 应答。"},
    {"Truncated", [] { return ScriptedResponse::Json(kGood.left(20)); }, 6, "server.bad_answer",
        "127.0.0.1:PORT sent an answer that cannot be read; it is damaged or cut short.",
        "127.0.0.1:PORT 发来的应答无法读取，已损坏或被截断。"},
    {"WrongShape", [] { return ScriptedResponse::Json(Envelope("{}")); }, 6, "server.wrong_shape",
        "127.0.0.1:PORT sent data of another form than this program understands.",
        "127.0.0.1:PORT 发来的数据格式与本程序所理解的不同。"},
    {"RedirectLoop", [] { return ScriptedResponse::Redirect("/api/v1/projects"); }, 6, "server.redirect_loop",
        "127.0.0.1:PORT passes the request on without end.", "127.0.0.1:PORT 不停地转发请求。"},
    {"BadRedirect", [] { return ScriptedResponse::Redirect("file:///etc/passwd"); }, 6, "server.redirect_refused",
        "127.0.0.1:PORT passes the request on to an address that must not be followed.",
        "127.0.0.1:PORT 把请求转到了不允许跟随的地址。"},
    {"CutShort", [] { return ScriptedResponse::Json(kGood).CutAt(CutPoint::WithinBody); }, 5, "network.closed",
        "127.0.0.1:PORT closed the connection before the answer was complete.",
        "127.0.0.1:PORT 在应答完成之前关闭了连接。"},
    {"Stalled", [] { return ScriptedResponse::Json(kGood).CutAt(CutPoint::AfterHeaders, CutAction::Stall); }, 5,
        "network.timeout", "127.0.0.1:PORT did not answer in time.", "127.0.0.1:PORT 未在规定时间内应答。"},
};

INSTANTIATE_TEST_SUITE_P(EachCause, FaultsTest, ::testing::ValuesIn(kFaults), testsupport::RowName());

using SingleFaultTest = NuqFixture;

TEST_F(SingleFaultTest, NoServer)
{
    runner.PointAt(QStringLiteral("http://127.0.0.1:1"));
    const NuqResult result = Run({"projects"});
    EXPECT_EQ(result.code, 5);
    EXPECT_EQ(result.err, "nuq: The projects could not be loaded. 127.0.0.1:1 refuses connections.\n"
                          "     Check that the server runs and that address and port are right.\n");
}

TEST_F(SingleFaultTest, NoSuchHost)
{
    runner.PointAt(QStringLiteral("http://no-such-host.invalid"));
    const NuqResult result = Run({"projects", "-q"});
    EXPECT_EQ(result.code, 5);
    EXPECT_EQ(
        result.err, "nuq: The projects could not be loaded. The host name no-such-host.invalid cannot be found.\n");
}

TEST_F(SingleFaultTest, NoConfiguration)
{
    QDir(runner.ApplicationFolder()).removeRecursively();
    const NuqResult result = Run({"projects", "-q"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err, "nuq: The projects could not be loaded. No server address is configured for the current "
                          "environment.\n");
    EXPECT_EQ(Run({"categories", "--service", "-q"}).code, 1);
}

TEST_F(SingleFaultTest, NoWebAddress)
{
    runner.PointAt(QStringLiteral("catalogue.example"));
    const NuqResult result = Run({"projects", "-q"});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.err,
        "nuq: The projects could not be loaded. The configured server address is not an http or https address.\n");
}

TEST_F(SingleFaultTest, UnknownEnvironment)
{
    EXPECT_EQ(Run({"projects", "--environment", "PROD", "-q"}).err,
        "nuq: The projects could not be loaded. No server address is configured for the current environment.\n");
}

TEST_F(SingleFaultTest, OfflineOpensNoConnection)
{
    for (const QStringList& command :
        {QStringList{"projects"}, QStringList{"categories"}, QStringList{"categories", "--service"},
            QStringList{"components", "--all"}, QStringList{"component", "1"}, QStringList{"exists", "1"},
            QStringList{"specifications", "1"}, QStringList{"tour"}, QStringList{"properties", "W", "--cloud"}}) {
        const NuqResult result = Run(command + QStringList{"--offline"});
        EXPECT_EQ(result.code, 5) << command.join(QLatin1Char(' ')).toStdString();
        EXPECT_NE(result.err.find("The program works offline and opens no connection.\n"), std::string::npos);
    }
    EXPECT_EQ(server.ConnectionCount(), 0);
}

TEST_F(SingleFaultTest, RateLimitedUntilATime)
{
    On("/v1/projects", ScriptedResponse::Status(429).WithHeader("Retry-After", "3600"));
    const NuqResult result = Run({"projects", "--json"});
    EXPECT_EQ(result.code, 6);
    EXPECT_NE(result.out.find("\"code\":\"server.rate_limited\""), std::string::npos);
    EXPECT_NE(result.out.find("\"retryAt\":\"20"), std::string::npos);
    EXPECT_EQ(server.Requests().size(), 1u);
}

TEST_F(SingleFaultTest, RecoversFromAPassingFault)
{
    On("/v1/projects", ScriptedResponse::Status(502));
    On("/v1/projects", ScriptedResponse::Json(Envelope(R"([{"id":"P","name":"N"}])")));
    const NuqResult result = Run({"projects"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "ID  NAME\nP   N\n");
    EXPECT_EQ(result.err, "");
}

TEST_F(SingleFaultTest, ShowsDetailsWhenAsked)
{
    On("/v1/projects", ScriptedResponse::Json(R"({"code":"DENIED","message":"Not yours."})", 403));
    EXPECT_EQ(Run({"projects", "-v"}).err,
        "nuq: The projects could not be loaded. You are signed in but not allowed to do this.\n"
        "     The server says: Not yours.\n"
        "     Ask the administrator of the project or of the service for permission.\n"
        "     code: auth.forbidden\n"
        "     address: http://127.0.0.1:PORT/api/v1/projects\n"
        "     HTTP status: 403\n"
        "     the server's code: DENIED\n"
        "     original text: Error transferring http://127.0.0.1:PORT/api/v1/projects - server replied: Forbidden\n"
        "     content type: application/json\n"
        "     tries: 1\n"
        "     number in the log: 1\n");
}

TEST_F(SingleFaultTest, AFullDiskIsAnError)
{
    OnData("/v1/projects", "[]");
    const auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(runner.environment);
    process->setStandardOutputFile(QStringLiteral("/dev/full"));
    process->start(NuqRunner::Program(), {QStringLiteral("projects")});
    ASSERT_TRUE(process->waitForFinished());
    EXPECT_EQ(process->exitCode(), 1);
    EXPECT_EQ(process->readAllStandardError(), "nuq: The output could not be written: No space left on device.\n");
}

} // namespace
} // namespace nuqtest
