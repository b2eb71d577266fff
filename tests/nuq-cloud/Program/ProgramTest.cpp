#include "FaultRelay/Fault.h"

#include "nuq-cloud/support/CloudProcess.h"
#include "nuq-cloud/support/Matches.h"
#include "nuq-cloud/support/TestServer.h"
#include "support/WaitFor.h"

#include <QDir>
#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace cloudtest {
namespace {

std::string ReadFile(const QString& path)
{
    std::ostringstream text;
    text << std::ifstream(path.toStdString(), std::ios::binary).rdbuf();
    return text.str();
}

class Program : public ::testing::Test
{
protected:
    QStringList Arguments(const QStringList& further = {}) const
    {
        return QStringList{QStringLiteral("--library"), QString::fromStdString(m_library.Path().string())} + further;
    }

    QString File(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QString Written(const char* name, const std::string& text) const
    {
        std::ofstream(File(name).toStdString(), std::ios::binary) << text;
        return File(name);
    }

    /// Runs the program to its end, which is soon.
    struct Outcome
    {
        int status;
        std::string output;
        std::string errors;
    };
    static Outcome Run(const QStringList& arguments, const QStringList& environment = {})
    {
        CloudProcess process(arguments, environment);
        const int status = process.WaitForEnd();
        return {status, process.Output(), process.Errors()};
    }

    void ExpectRefused(const QStringList& arguments, int status, const std::string& message) const
    {
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.status, status) << message;
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "nuq-cloud: " + message + '\n');
    }

    const TestLibrary m_library;
    const QTemporaryDir m_folder;
};

TEST_F(Program, PrintsOneLineWhenItIsReadyAndEndsCleanlyBySignal)
{
    for (const bool interrupt : {false, true}) {
        CloudProcess cloud(Arguments({QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--quiet")}));
        ASSERT_TRUE(cloud.WaitUntilReady());
        EXPECT_EQ(cloud.ReadyLine(), "{\"url\":\"http://127.0.0.1:" + std::to_string(cloud.Port()) + "\"}\n");
        EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), 200);
        if (interrupt) {
            cloud.Interrupt();
        } else {
            cloud.Terminate();
        }
        EXPECT_EQ(cloud.WaitForEnd(), 0);
        EXPECT_EQ(cloud.Output(), "");
        EXPECT_EQ(cloud.Errors(), "");
    }
}

TEST_F(Program, FinishesARunningRequestBeforeItEnds)
{
    CloudProcess cloud(Arguments({QStringLiteral("--allow-faults"), QStringLiteral("--quiet")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    RawClient client(cloud.Port());
    client.Send(Request("/api/v1/projects", {kToken, "X-Nuq-Fault: delay=700"}));
    RawClient other(cloud.Port());
    other.Send(Request("/api/v1/projects", {kToken}));
    other.ReadReply(); // sent later and answered: the first request is on its way too
    cloud.Terminate();
    EXPECT_EQ(client.ReadReply().Status(), 200);
    EXPECT_EQ(cloud.WaitForEnd(), 0);
}

TEST_F(Program, EndsAtOnceWithIdleClients)
{
    CloudProcess cloud(Arguments({QStringLiteral("--quiet")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    RawClient idle(cloud.Port());
    idle.Send(Request("/api/v1/projects", {kToken}));
    idle.ReadReply();
    const auto begin = std::chrono::steady_clock::now();
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

TEST_F(Program, EndsAtOnceWithRepliesThatStall)
{
    CloudProcess cloud(Arguments({QStringLiteral("--allow-faults"), QStringLiteral("--access-log"), File("log")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    RawClient silent(cloud.Port());
    silent.Send(Request("/api/v1/projects", {kToken, "X-Nuq-Fault: stall-before-headers"}));
    RawClient half(cloud.Port());
    half.Send(Request("/api/v1/projects", {kToken, "X-Nuq-Fault: stall"}));
    ASSERT_TRUE(
        testsupport::WaitFor([this] { return ReadFile(File("log")).find("fault=stall\n") != std::string::npos; }));
    const auto begin = std::chrono::steady_clock::now();
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

TEST_F(Program, WritesEnvironmentFilesBeforeItIsReady)
{
    CloudProcess cloud(Arguments({QStringLiteral("--quiet"), QStringLiteral("--write-config"), File("应用 a")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    const QString folder = File("应用 a/nuq_env_config/");
    const std::string url = "http://127.0.0.1:" + std::to_string(cloud.Port());
    EXPECT_EQ(ReadFile(folder + QStringLiteral("nuq_env_config.json")),
        "{\n  \"wab_env\": \"/nuq_env_config/wab_env.xml\",\n  \"pyx_env\": \"/nuq_env_config/pyx_env.json\",\n"
        "  \"env_map\": \"/nuq_env_config/env_map.json\"\n}\n");
    EXPECT_EQ(ReadFile(folder + QStringLiteral("pyx_env.json")),
        "{\n  \"test\": {\n    \"api\": \"" + url + "/qa/api\",\n    \"static\": \"" + url +
            "/qa/static\"\n  },\n  \"production\": {\n    \"api\": \"" + url + "/api\",\n    \"static\": \"" + url +
            "/static\"\n  }\n}\n");
    EXPECT_EQ(
        ReadFile(folder + QStringLiteral("env_map.json")), "{\n  \"qa\": \"test\",\n  \"prod\": \"production\"\n}\n");
    EXPECT_EQ(ReadFile(folder + QStringLiteral("wab_env.xml")),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<envs>\n  <env name=\"qa\" scheme=\"bearer\"/>\n"
        "  <env name=\"prod\" scheme=\"none\"/>\n</envs>\n");
    EXPECT_EQ(ReadFile(folder + QStringLiteral("wab_endpoints.json")),
        "{\n  \"qa\": {\n    \"structure\": \"" + url + "/qa/structure\"\n  },\n  \"prod\": {\n    \"structure\": \"" +
            url + "/structure\"\n  }\n}\n");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 5) << "nothing is left over";
}

TEST_F(Program, EndsWhenItCannotWriteEnvironmentFiles)
{
    const QString blocked = Written("file", "x") + QStringLiteral("/app");
    const Outcome outcome = Run(Arguments({QStringLiteral("--quiet"), QStringLiteral("--write-config"), blocked}));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "nuq-cloud: Cannot write \"" +
                                  (blocked + QStringLiteral("/nuq_env_config")).toStdString() +
                                  "\": Not a directory.\n");
}

TEST_F(Program, RefusesBadOptionsWithOneLineAndStatus2)
{
    const std::string help = " (see nuq-cloud --help)";
    ExpectRefused(
        {QStringLiteral("--prot"), QStringLiteral("1")}, 2, "There is no option --prot; did you mean --port?" + help);
    ExpectRefused({QStringLiteral("--qqqqqqqq")}, 2, "There is no option --qqqqqqqq" + help);
    ExpectRefused({QStringLiteral("extra")}, 2, "There is nothing to do with \"extra\"" + help);
    ExpectRefused(
        {QStringLiteral("--port"), QStringLiteral("65536")}, 2, "--port: Value 65536 not in range 0 to 65535" + help);
    ExpectRefused(
        {QStringLiteral("--port"), QStringLiteral("-1")}, 2, "--port: Value -1 not in range 0 to 65535" + help);
    ExpectRefused({QStringLiteral("--port")}, 2, "The option --port needs a value" + help);
    ExpectRefused(
        {QStringLiteral("--port=1"), QStringLiteral("--port=2")}, 2, "The option --port may be given only once" + help);
    ExpectRefused({QStringLiteral("--quiet=3")}, 2, "The option --quiet takes no value" + help);
    ExpectRefused({QStringLiteral("--tls-fault"), QStringLiteral("expired")}, 2, "--tls-fault requires --tls" + help);
    ExpectRefused({QStringLiteral("--fault"), QStringLiteral("bogus")}, 2,
        "There is no fault \"bogus\"; nuq-cloud --help lists those there are.");
    ExpectRefused(
        {QStringLiteral("--scenario"), QStringLiteral("/nowhere")}, 2, "Cannot read the scenario \"/nowhere\".");
}

TEST_F(Program, SaysWhatToDoAboutALibraryThatIsMissing)
{
    ExpectRefused({QStringLiteral("--library"), QStringLiteral("/nowhere")}, 1,
        "There is no sample library in \"/nowhere\" (library.json cannot be read). Build one with: "
        "sample-library-builder \"/nowhere\", or name another with --library.");
}

TEST_F(Program, SaysThatThePortIsTaken)
{
    const TestServer other;
    for (const QStringList& further : {QStringList(), QStringList(QStringLiteral("--allow-faults"))}) {
        const Outcome outcome = Run(Arguments({QStringLiteral("--port"), QString::number(other.Port())}) + further);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.errors.find("nuq-cloud: Cannot listen on 127.0.0.1 port "), 0U) << outcome.errors;
        EXPECT_NE(outcome.errors.find("Choose another --port, or --port 0 for a free one."), std::string::npos);
    }
}

TEST_F(Program, SaysThatTheHostIsNotKnown)
{
    for (const QStringList& further : {QStringList(), QStringList(QStringLiteral("--allow-faults"))}) {
        ExpectRefused(Arguments({QStringLiteral("--host"), QStringLiteral("no such host")}) + further, 1,
            "Cannot listen on no such host port 0: The host is not known. Name an address of this computer with "
            "--host.");
    }
}

TEST_F(Program, TellsItsVersionAndBeginsItsHelpWithExamples)
{
    const Outcome version = Run({QStringLiteral("--version")});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "nuq-cloud " NUQ_CLOUD_VERSION "\n");
    const Outcome help = Run({QStringLiteral("--help")});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.errors, "");
    EXPECT_LT(help.output.find("Examples:"), help.output.find("Options:"));
    for (const nuqcloud::FaultKind& kind : nuqcloud::FaultKinds()) {
        EXPECT_NE(help.output.find(std::string("\n  ") + kind.name), std::string::npos) << kind.name;
    }
}

TEST_F(Program, LogsOneLineARequestWithoutSecrets)
{
    CloudProcess cloud(Arguments());
    ASSERT_TRUE(cloud.WaitUntilReady());
    Fetch(cloud.Port(), "/api/v1/projects?access_token=secret-1", {kToken, "X-Request-Id: r-1"});
    Fetch(cloud.Port(), "/api/v1/projects", {"Authorization: secret-2", "X-Request-Id: r-2"});
    cloud.Terminate();
    ASSERT_EQ(cloud.WaitForEnd(), 0);
    const std::string log = cloud.Errors();
    const std::string time = R"(....-..-..T..:..:..\....Z )";
    EXPECT_TRUE(Matches(log, '^' + time + R"(r-1 GET /api/v1/projects\?access_token=\*\*\* 200 \d+ \d+\.\d\d\n)" +
                                 time + R"(r-2 GET /api/v1/projects 401 \d+ \d+\.\d\d\n$)"))
        << log;
    EXPECT_EQ(log.find("secret"), std::string::npos);
    EXPECT_EQ(log.find("demo-token"), std::string::npos);
}

TEST_F(Program, KeepsItsLogInAFileEvenWhenItIsQuiet)
{
    CloudProcess cloud(Arguments({QStringLiteral("--quiet"), QStringLiteral("--access-log"), File("access.log")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    Fetch(cloud.Port(), "/api/v1/projects", {kToken, "X-Request-Id: r-1"});
    EXPECT_NE(ReadFile(File("access.log")).find(" r-1 GET "), std::string::npos) << "before the program ends";
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
    EXPECT_EQ(cloud.Errors(), "");
}

TEST_F(Program, TakesTokensFromTheEnvironment)
{
    CloudProcess cloud(Arguments({QStringLiteral("--quiet")}),
        {QStringLiteral("NUQ_CLOUD_TOKEN=one"), QStringLiteral("NUQ_CLOUD_TOKEN_QA=two")});
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {"Authorization: one"}).Status(), 200);
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), 401);
    EXPECT_EQ(Fetch(cloud.Port(), "/qa/api/v1/projects", {"Authorization: bearer two"}).Status(), 200);
}

TEST_F(Program, TakesTokensFromAFileBeforeTheEnvironment)
{
    const QString file = Written("tokens", "# tokens\n\nprod=from file=1\r\nqa=two\n");
    CloudProcess cloud(Arguments({QStringLiteral("--quiet"), QStringLiteral("--token-file"), file}),
        {QStringLiteral("NUQ_CLOUD_TOKEN=one")});
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {"Authorization: from file=1"}).Status(), 200);
    EXPECT_EQ(Fetch(cloud.Port(), "/qa/api/v1/projects", {"Authorization: bearer two"}).Status(), 200);
}

TEST_F(Program, RefusesATokenFileWithoutQuotingIt)
{
    const QString file = Written("tokens", "prod=secret\nsecret\n");
    ExpectRefused(Arguments({QStringLiteral("--token-file"), file}), 1,
        "Line 2 of the token file \"" + file.toStdString() + "\" is neither \"prod=TOKEN\" nor \"qa=TOKEN\".");
    Written("tokens", "qa=\n");
    ExpectRefused(Arguments({QStringLiteral("--token-file"), file}), 1,
        "Line 1 of the token file \"" + file.toStdString() +
            "\" does not hold a usable token (1 to 4096 printable ASCII characters, no blank at either end).");
    ExpectRefused(Arguments({QStringLiteral("--token-file"), File("none")}), 1,
        "Cannot read the token file \"" + File("none").toStdString() + "\".");
}

TEST_F(Program, MakesFaultsByRule)
{
    CloudProcess cloud(Arguments({QStringLiteral("--fault"), QStringLiteral("status=503@/api/v1/projects#2"),
        QStringLiteral("--fault"), QStringLiteral("truncate=4@/api/v1/components")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), 200);
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), 503);
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), 200);
    EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/components", {kToken}).body, "{\"co");
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
    EXPECT_NE(cloud.Errors().find(" fault=status=503\n"), std::string::npos);
}

TEST_F(Program, MakesFaultsByScenario)
{
    const QString file = Written("scenario.json",
        R"({"schema":1,"seed":3,"latencyMs":1,"jitterMs":2,"rules":[{"fault":"rate-limit=2","path":"/api","every":2}]})");
    CloudProcess cloud(Arguments({QStringLiteral("--quiet"), QStringLiteral("--scenario"), file}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    for (const int status : {429, 200, 429, 200}) {
        EXPECT_EQ(Fetch(cloud.Port(), "/api/v1/projects", {kToken}).Status(), status);
    }
}

TEST_F(Program, DoesNotObeyTheFaultHeaderUnlessItIsAllowed)
{
    for (const QStringList& further : {QStringList(), QStringList(QStringLiteral("--allow-faults"))}) {
        CloudProcess cloud(Arguments({QStringLiteral("--quiet")}) + further);
        ASSERT_TRUE(cloud.WaitUntilReady());
        const RawReply http = Fetch(cloud.Port(), "/api/v1/projects", {kToken, "X-Nuq-Fault: status=500"});
        const RawReply connection = Fetch(cloud.Port(), "/api/v1/projects", {kToken, "X-Nuq-Fault: truncate=1"});
        EXPECT_EQ(http.Status(), further.isEmpty() ? 200 : 500);
        EXPECT_EQ(connection.body.size() == 1, !further.isEmpty());
    }
}

TEST_F(Program, RecordsASessionAndReplaysIt)
{
    std::string recorded;
    {
        CloudProcess cloud(Arguments({QStringLiteral("--quiet"), QStringLiteral("--record"), File("session")}));
        ASSERT_TRUE(cloud.WaitUntilReady());
        const RawReply reply = Fetch(cloud.Port(), "/api/v3/categories", {kToken});
        recorded = reply.head + reply.body;
        cloud.Terminate();
        EXPECT_EQ(cloud.WaitForEnd(), 0);
    }
    CloudProcess cloud({QStringLiteral("--quiet"), QStringLiteral("--replay"), File("session"),
        QStringLiteral("--library"), QStringLiteral("/nowhere")});
    ASSERT_TRUE(cloud.WaitUntilReady());
    const RawReply reply = Fetch(cloud.Port(), "/api/v3/categories", {kToken});
    EXPECT_EQ(reply.head + reply.body, recorded);
}

TEST_F(Program, DoesNotMindAClosedOutput)
{
    CloudProcess cloud(
        Arguments({QStringLiteral("--access-log"), File("log"), QStringLiteral("--write-config"), File("app")}));
    cloud.Process().closeReadChannel(QProcess::StandardOutput);
    cloud.Process().closeReadChannel(QProcess::StandardError);
    const QString file = File("app/nuq_env_config/nuq_env_config.json");
    ASSERT_TRUE(testsupport::WaitFor([&file] { return QFile::exists(file); }));
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
}

} // namespace
} // namespace cloudtest
