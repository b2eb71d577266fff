#include "Diagnosis/ServiceCheck.h"

#include "Diagnosis/FolderCheck.h"
#include "support/CatalogueFixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace componentlibrary {
namespace {

using testsupport::ScriptedResponse;
using testsupport::WaitFor;

const QByteArray kProjects = Envelope(R"([{"id":"P1"}])");

class ServiceCheckTest : public CatalogueFixture
{
protected:
    /// What a whole check finds, as "check=verdict" for everything that is not good.
    std::string NotGood(const QString& endPoint = QString())
    {
        catalogue = std::make_unique<Catalogue>(settings, endPoint.isEmpty() ? server.BaseUrl() : endPoint);
        ServiceCheck check(*catalogue);
        QObject::connect(&check, &ServiceCheck::Finished, &check, [this] { ++ends; });
        check.Start();
        EXPECT_TRUE(WaitFor([this] { return ends > 0; }));
        findings = check.Result();
        EXPECT_EQ(findings.size(), 7u);
        std::string text;
        for (const Finding& finding : findings) {
            if (finding.verdict != Verdict::Good)
                text += finding.check.toStdString() + "=" + VerdictId(finding.verdict).toStdString() + " ";
        }
        return text;
    }

    void OnProjects(ScriptedResponse response) { server.On("/v1/projects", response); }
    void OnGoodProjects() { OnProjects(WithDate(ScriptedResponse::Json(kProjects), 0)); }

    static ScriptedResponse WithDate(ScriptedResponse response, int secondsAhead)
    {
        const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(secondsAhead);
        const QString date = QLocale::c().toString(time, QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
        return response.WithHeader("Date", date.toLatin1());
    }

    /// Thumbnails get the static endpoint in front, which is empty here; so the whole address is sent.
    void OnGoodComponents()
    {
        server.On("/v1/components", ScriptedResponse::Json(Envelope(R"({"totalCount":0,"list":[]})")));
    }

    Findings findings;
};

TEST_F(ServiceCheckTest, FindsNothingWrongWithAGoodService)
{
    OnGoodProjects();
    OnGoodComponents();
    EXPECT_EQ(NotGood(), "static.thumbnail=skipped ");
    EXPECT_EQ(findings.at(4).text, QStringLiteral("1 projects"));
    EXPECT_EQ(ends, 1);
}

TEST_F(ServiceCheckTest, NamesAHostThatDoesNotExist)
{
    EXPECT_EQ(NotGood(QStringLiteral("http://no-such-host.invalid/api")),
        "network.name=fault network.connection=skipped network.tls=skipped service.sign_in=skipped "
        "service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(findings.front().text, QStringLiteral("The host name no-such-host.invalid cannot be found."));
}

TEST_F(ServiceCheckTest, NamesARefusedConnectionAfterOneTry)
{
    quint16 port = 0;
    {
        testsupport::LoopbackServer gone;
        port = gone.Port();
    }
    EXPECT_EQ(NotGood(QStringLiteral("http://127.0.0.1:%1").arg(port)),
        "network.connection=fault network.tls=skipped service.sign_in=skipped service.answer=skipped "
        "service.clock=skipped static.thumbnail=skipped ");
}

TEST_F(ServiceCheckTest, NamesABadCertificate)
{
    testsupport::LoopbackServer tls(testsupport::LoopbackServer::Transport::Tls);
    EXPECT_EQ(NotGood(tls.BaseUrl()),
        "network.tls=fault service.sign_in=skipped service.answer=skipped service.clock=skipped "
        "static.thumbnail=skipped ");
}

TEST_F(ServiceCheckTest, NamesARefusedToken)
{
    OnProjects(ScriptedResponse::Status(401));
    EXPECT_EQ(
        NotGood(), "service.sign_in=fault service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(findings.at(3).text, QStringLiteral("You are not signed in, or your sign-in has expired."));
}

TEST_F(ServiceCheckTest, NamesAnAnswerThatIsNoData)
{
    OnProjects(ScriptedResponse::Content("<html></html>", "text/html"));
    EXPECT_EQ(
        NotGood(), "service.sign_in=skipped service.answer=fault service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(findings.at(4).text, QStringLiteral("127.0.0.1:%1 sent a web page instead of data.").arg(server.Port()));
}

TEST_F(ServiceCheckTest, NamesAWrongClockAndGoesOn)
{
    OnProjects(WithDate(ScriptedResponse::Json(kProjects), -3600));
    OnGoodComponents();
    EXPECT_EQ(NotGood(), "service.clock=fault static.thumbnail=skipped ");
}

TEST_F(ServiceCheckTest, TellsTheDifferenceOfClocksInReadableUnits)
{
    // Half a unit more than shown, so that a slow run shows the same.
    const std::vector<std::pair<int, const char*>> rows = {{90 * 60 + 30, "90 min apart from the server's"},
        {-(5 * 3600 + 1800), "5 h apart from the server's"},
        {-(365 * 86400 + 43200), "365 days apart from the server's"}};
    for (const auto& [seconds, text] : rows) {
        ends = 0;
        server.Enqueue(WithDate(ScriptedResponse::Json(kProjects), seconds));
        OnGoodComponents();
        NotGood();
        EXPECT_EQ(findings.at(5).text.toStdString(), text);
    }
}

TEST_F(ServiceCheckTest, WarnsOfADoubtfulClock)
{
    OnProjects(WithDate(ScriptedResponse::Json(kProjects), 100));
    OnGoodComponents();
    EXPECT_EQ(NotGood(), "service.clock=warning static.thumbnail=skipped ");
}

TEST_F(ServiceCheckTest, OpensNoConnectionOffline)
{
    settings.isOffline = true;
    EXPECT_EQ(NotGood(), "network.name=skipped network.connection=skipped network.tls=skipped service.sign_in=skipped "
                         "service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(findings.front().text, QStringLiteral("not checked offline"));
    EXPECT_EQ(server.ConnectionCount(), 0);
}

TEST(FolderCheck, TriesToWrite)
{
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("a/b"));
    EXPECT_EQ(CheckFolder(QStringLiteral("folder.log"), fresh).verdict, Verdict::Good);
    EXPECT_TRUE(QDir(fresh).isEmpty()) << "nothing is left behind";
    QFile file(folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Finding finding = CheckFolder(QStringLiteral("folder.log"), file.fileName() + QStringLiteral("/x"));
    EXPECT_EQ(finding.verdict, Verdict::Fault);
    EXPECT_TRUE(finding.text.startsWith(file.fileName() + QStringLiteral("/x cannot be written to: ")));
}

} // namespace
} // namespace componentlibrary
