#include "support/NuqFixture.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nuqtest {
namespace {

using testsupport::ScriptedResponse;

class DoctorTest : public NuqFixture
{
protected:
    DoctorTest()
    {
        OnData("/v1/components", R"({"totalCount":1,"list":[{"id":"C","thumbnail":"t.png"}]})");
        server.On("/static/t.png", ScriptedResponse::Content("\x89PNG\r\n\x1a\nIEND\xae\x42\x60\x82", "image/png"));
    }

    void OnGoodProjects()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const QString date = QLocale::c().toString(now, QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
        On("/v1/projects", ScriptedResponse::Json(Envelope("[]")).WithHeader("Date", date.toLatin1()));
    }

    /// The checks that are not good, as "check=verdict"; the exit code goes to `code`.
    std::string NotGood(const QStringList& more = {})
    {
        const NuqResult result = runner.Run(QStringList{"doctor", "--json"} + more);
        code = result.code;
        const QJsonObject document = QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).object();
        EXPECT_EQ(document.value(QLatin1String("schema")).toInt(), 1);
        EXPECT_EQ(document.value(QLatin1String("isInOrder")).toBool(), code == 0);
        std::string text;
        for (const QJsonValue& value : document.value(QLatin1String("findings")).toArray()) {
            const QJsonObject finding = value.toObject();
            const QString verdict = finding.value(QLatin1String("verdict")).toString();
            EXPECT_EQ(finding.value(QLatin1String("hint")).toString().isEmpty(),
                verdict == QLatin1String("good") || verdict == QLatin1String("skipped"));
            if (verdict != QLatin1String("good"))
                text +=
                    finding.value(QLatin1String("check")).toString().toStdString() + "=" + verdict.toStdString() + " ";
        }
        return text;
    }

    int code = -1;
};

TEST_F(DoctorTest, FindsNothingWrong)
{
    OnGoodProjects();
    EXPECT_EQ(NotGood(), "");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(server.Requests().back().HeaderCount("Authorization"), 0) << "pictures are asked for without the token";
}

TEST_F(DoctorTest, ShowsALineACheck)
{
    OnGoodProjects();
    const NuqResult result = Run({"doctor"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out.substr(0, result.out.find("clock")),
        "   CHECK                            FOUND\n"
        "✓  application folder               APP (environment variable NUQ_APP_DIR)\n"
        "✓  settings                         HOME/.config/tarnnuq/settings.json (not there, defaults are used)\n"
        "✓  environment files: list          APP/nuq_env_config/nuq_env_config.json\n"
        "✓  environment files: design cloud  APP/nuq_env_config/wab_env.xml\n"
        "✓  environment files: map           APP/nuq_env_config/env_map.json\n"
        "✓  environment files: addresses     APP/nuq_env_config/pyx_env.json\n"
        "✓  environment                      prod\n"
        "✓  address of the interface         http://127.0.0.1:PORT/api\n"
        "✓  address of static files          http://127.0.0.1:PORT/static\n"
        "✓  token                            environment variable NUQ_TOKEN\n"
        "✓  log folder                       HOME/.local/state/tarnnuq\n"
        "✓  cache folder                     HOME/.cache/tarnnuq/thumbnails\n"
        "✓  host name                        127.0.0.1\n"
        "✓  connection                       127.0.0.1:PORT\n"
        "✓  encryption                       not needed on this computer\n"
        "✓  sign-in                          token accepted\n"
        "✓  answer of the service            0 projects\n"
        "✓  ");
    const std::string end = "\nEverything is in order.\n";
    EXPECT_EQ(result.out.substr(result.out.size() - end.size()), end);
}

TEST_F(DoctorTest, NamesAMissingTokenAsOneFault)
{
    runner.environment.remove(QStringLiteral("NUQ_TOKEN"));
    On("/v1/projects", ScriptedResponse::Status(401));
    EXPECT_EQ(NotGood(),
        "token=fault service.sign_in=skipped service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(code, 7);
}

TEST_F(DoctorTest, NamesARefusedToken)
{
    On("/v1/projects", ScriptedResponse::Status(401));
    EXPECT_EQ(
        NotGood(), "service.sign_in=fault service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(code, 7);
}

TEST_F(DoctorTest, NamesAMissingApplicationFolder)
{
    const std::string found = NotGood({"--app-dir", runner.HomeFolder() + QStringLiteral("/none")});
    EXPECT_EQ(found, "folder.application=fault network.name=skipped network.connection=skipped network.tls=skipped "
                     "service.sign_in=skipped service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(code, 7);
}

TEST_F(DoctorTest, NamesADamagedSettingsFile)
{
    OnGoodProjects();
    const QString folder = runner.HomeFolder() + QStringLiteral("/.config/tarnnuq");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/settings.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{oops");
    file.close();
    EXPECT_EQ(NotGood(), "settings=warning ");
    EXPECT_EQ(code, 0);
}

TEST_F(DoctorTest, NamesAThumbnailThatIsNoPicture)
{
    OnGoodProjects();
    OnData("/v1/components", R"({"totalCount":1,"list":[{"id":"C","thumbnail":"t.png"}]})");
    testsupport::LoopbackServer other;
    other.On("/api/v1/projects", ScriptedResponse::Json(Envelope("[]")));
    other.On("/api/v1/components",
        ScriptedResponse::Json(Envelope(R"({"totalCount":1,"list":[{"id":"C","thumbnail":"t.png"}]})")));
    other.On("/static/t.png", ScriptedResponse::Content("<html></html>", "text/html"));
    runner.PointAt(other.BaseUrl());
    EXPECT_EQ(NotGood(), "service.clock=skipped static.thumbnail=fault ");
    EXPECT_EQ(code, 7);
}

TEST_F(DoctorTest, ChecksFilesAndFoldersOffline)
{
    EXPECT_EQ(NotGood({"--offline"}),
        "network.name=skipped network.connection=skipped network.tls=skipped service.sign_in=skipped "
        "service.answer=skipped service.clock=skipped static.thumbnail=skipped ");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(server.ConnectionCount(), 0);
    const std::string out = Run({"doctor", "--offline"}).out;
    EXPECT_NE(out.find("\nWhat was checked is in order. Not checked: 7.\n"), std::string::npos) << out;
}

} // namespace
} // namespace nuqtest
