#include "support/NuqFixture.h"

#include "support/WaitFor.h"

#include <QElapsedTimer>
#include <csignal>
#include <unistd.h>

namespace nuqtest {
namespace {

using testsupport::ScriptedResponse;
using testsupport::WaitFor;
using CutPoint = ScriptedResponse::CutPoint;
using CutAction = ScriptedResponse::CutAction;

class SignalsTest : public NuqFixture
{
protected:
    SignalsTest() { On("/v1/projects", ScriptedResponse::Json("{}").CutAt(CutPoint::BeforeHeaders, CutAction::Stall)); }

    /// Sends a signal once the program waits for the server.
    std::unique_ptr<QProcess> Interrupt(const QStringList& arguments, int signal)
    {
        auto process = runner.Start(arguments);
        EXPECT_TRUE(process->waitForStarted());
        EXPECT_TRUE(WaitFor([this] { return !server.Requests().empty(); }));
        QElapsedTimer timer;
        timer.start();
        ::kill(static_cast<pid_t>(process->processId()), signal);
        EXPECT_TRUE(process->waitForFinished(5000));
        EXPECT_LT(timer.elapsed(), 2000);
        EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
        return process;
    }
};

TEST_F(SignalsTest, CtrlCEndsCleanly)
{
    const auto process = Interrupt({"projects"}, SIGINT);
    EXPECT_EQ(process->exitCode(), 130);
    EXPECT_EQ(process->readAllStandardOutput(), "");
    EXPECT_EQ(process->readAllStandardError(), "nuq: The projects could not be loaded. It was cancelled.\n");
}

TEST_F(SignalsTest, CtrlCLeavesADocument)
{
    const auto process = Interrupt({"projects", "--json"}, SIGINT);
    EXPECT_EQ(process->exitCode(), 130);
    const QByteArray out = process->readAllStandardOutput();
    EXPECT_TRUE(out.startsWith("{\"code\":\"cancelled\",\"details\":{")) << out.toStdString();
    EXPECT_TRUE(out.endsWith("\"message\":\"The projects could not be loaded. It was cancelled.\",\"schema\":1}\n"));
}

TEST_F(SignalsTest, ARequestToTerminateEndsCleanly)
{
    EXPECT_EQ(Interrupt({"projects"}, SIGTERM)->exitCode(), 143);
}

TEST_F(SignalsTest, CtrlCEndsTheDoctor)
{
    EXPECT_EQ(Interrupt({"doctor"}, SIGINT)->exitCode(), 130);
}

class PipesTest : public NuqFixture
{
protected:
    PipesTest()
    {
        QByteArray list;
        for (int id = 0; id < 200; ++id)
            list += (id == 0 ? "" : ",") + QByteArray("{\"id\":\"") + QByteArray::number(id) + QByteArray(3000, 'x') +
                    "\"}";
        // The same long page again and again: a list without an end.
        OnData("/v1/components", "{\"totalCount\":2000000,\"list\":[" + list + "]}");
    }

    /// A shell around the program, whose exit code is the second line of what comes back.
    std::pair<QByteArray, QByteArray> InShell(const QString& commandLine)
    {
        QProcess shell;
        shell.setProcessEnvironment(runner.environment);
        shell.start(QStringLiteral("/bin/bash"),
            {QStringLiteral("-c"), QString(commandLine).replace(QStringLiteral("nuq"), NuqRunner::Program())});
        EXPECT_TRUE(shell.waitForFinished(20000));
        return {shell.readAllStandardOutput(), shell.readAllStandardError()};
    }
};

TEST_F(PipesTest, AClosedPipeIsNoError)
{
    for (const char* form : {"--json --stream", "--json", ""}) {
        const auto [out, err] =
            InShell(QStringLiteral("nuq components --all %1 | head -c 10 >/dev/null; echo ${PIPESTATUS[0]}")
                        .arg(QLatin1String(form)));
        EXPECT_EQ(out, "0\n") << form;
        EXPECT_EQ(err, "") << form;
    }
}

TEST_F(PipesTest, AClosedStreamIsNotTakenByAnythingElse)
{
    OnData("/v1/projects", "[]");
    const auto [out, err] = InShell(QStringLiteral("nuq projects >&-; echo $?; nuq projects <&- 2>&-; echo $?"));
    EXPECT_EQ(out, "1\nID  NAME\n0\n");
    EXPECT_EQ(err, "nuq: The output could not be written: Bad file descriptor.\n");
}

TEST_F(PipesTest, CtrlCEndsAListWhoseReaderIsSlow)
{
    auto process = runner.Start({"components", "--all", "--json", "--stream"});
    ASSERT_TRUE(process->waitForStarted());
    // Nobody reads: once pipe and buffers are full the program hangs in its write.
    process->setReadChannel(QProcess::StandardOutput);
    ASSERT_TRUE(WaitFor([this] { return server.Requests().size() >= 2; }));
    ::kill(static_cast<pid_t>(process->processId()), SIGINT);
    ASSERT_TRUE(process->waitForFinished(5000));
    EXPECT_EQ(process->exitCode(), 130);
}

} // namespace
} // namespace nuqtest
