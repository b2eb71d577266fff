#include "support/NuqFixture.h"
#include "support/PtyRun.h"

namespace nuqtest {
namespace {

using testsupport::ScriptedResponse;

class TerminalTest : public NuqFixture
{
protected:
    TerminalTest()
    {
        runner.environment.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
        OnData("/v1/projects", R"([{"id":"P1","name":"N"}])");
    }
};

TEST_F(TerminalTest, ShowsColoursOnATerminal)
{
    const PtyResult result = RunOnTerminal(runner, {"projects"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.text, "\033[1mID\033[0m  \033[1mNAME\033[0m\nP1  N\n");
}

TEST_F(TerminalTest, ShowsNoneWhereTheUserRefuses)
{
    const std::string plain = "ID  NAME\nP1  N\n";
    EXPECT_EQ(RunOnTerminal(runner, {"projects", "--color", "never"}).text, plain);
    runner.environment.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
    EXPECT_EQ(RunOnTerminal(runner, {"projects"}).text, plain);
    runner.environment.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
    runner.environment.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    EXPECT_EQ(RunOnTerminal(runner, {"projects"}).text, plain);
    EXPECT_NE(RunOnTerminal(runner, {"projects", "--color=always"}).text, plain);
}

TEST_F(TerminalTest, ShowsNoneInAFileUnlessAskedTo)
{
    EXPECT_EQ(Run({"projects"}).out, "ID  NAME\nP1  N\n");
    EXPECT_EQ(Run({"projects", "--color", "always"}).out, "\033[1mID\033[0m  \033[1mNAME\033[0m\nP1  N\n");
    EXPECT_EQ(Run({"projects", "--json", "--color", "always"}).out.find('\033'), std::string::npos);
}

TEST_F(TerminalTest, ShowsProgressAndWipesItAgain)
{
    On("/v3/categories", ScriptedResponse::Json(Envelope("[]")).Delayed(std::chrono::milliseconds(900)));
    const PtyResult result = RunOnTerminal(runner, {"categories", "--color", "never"});
    const std::string shown = "\r\033[KWaiting for the server ...";
    EXPECT_EQ(result.text.substr(0, shown.size()), shown);
    EXPECT_NE(result.text.find("\r\033[KThe catalogue has no categories.\n"), std::string::npos);
}

TEST_F(TerminalTest, ShowsNoProgressForAQuickAnswerInAPipeOrWhenQuiet)
{
    EXPECT_EQ(RunOnTerminal(runner, {"projects"}).text.find('\r'), std::string::npos);
    On("/v3/categories", ScriptedResponse::Json(Envelope("[]")).Delayed(std::chrono::milliseconds(900)));
    EXPECT_EQ(Run({"categories"}).err, "The catalogue has no categories.\n");
    EXPECT_EQ(RunOnTerminal(runner, {"categories", "--quiet"}).text.find('\r'), std::string::npos);
}

TEST_F(TerminalTest, FitsATableIntoTheTerminal)
{
    OnData("/v1/components",
        R"({"totalCount":1,"list":[{"id":"C1","name":")" + QByteArray(200, 'n') + R"(","status":"released"}]})");
    const PtyResult result = RunOnTerminal(runner, {"components", "--color", "never", "--quiet"});
    for (const std::string& line : {result.text.substr(0, result.text.find('\n'))})
        EXPECT_LE(line.size(), 80u);
    EXPECT_NE(result.text.find("…"), std::string::npos);
    EXPECT_NE(Run({"components"}).out.find(std::string(200, 'n')), std::string::npos) << "a file is never cut";
}

} // namespace
} // namespace nuqtest
