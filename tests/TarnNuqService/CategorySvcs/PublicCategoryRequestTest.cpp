#include "TarnNuqService/CategorySvcs/PublicCategoryFixture.h"
#include "support/NamedCase.h"

#include <QNetworkReply>
#include <QPointer>

using testsupport::LogRecord;
using testsupport::ScriptedResponse;

namespace {

constexpr const char* NoCategories = R"({"code":"success","data":[]})";

/// What the host and the caller say, the text of the request and what of it goes over the wire.
struct RequestCase : testsupport::NamedCase
{
    int major;
    std::wstring version;
    QString keyword;
    QString text;
    QByteArray query;
};

class PublicCategoryRequestTest : public testsupport::PublicCategoryFixture
{
protected:
    using PublicCategoryFixture::PublicCategoryFixture;

    void Send(const QString& keyword) { Request(ScriptedResponse::Json(NoCategories), keyword); }

    static LogRecord InfoRecord(const QString& text) { return {LogRecord::Operation::Info, {text}}; }
    static LogRecord ErrorRecord(const QString& text) { return {LogRecord::Operation::Error, {text}}; }
    static LogRecord HeaderRecord(const QString& value)
    {
        return {LogRecord::Operation::Debug, {QStringLiteral("Authorization header: "), value}};
    }

    QString UrlText(const QString& query) const
    {
        return server.BaseUrl() + QStringLiteral("/api/v3/categories?") + query;
    }
};

class PublicCategoryUrlTest : public PublicCategoryRequestTest, public ::testing::WithParamInterface<RequestCase>
{
protected:
    PublicCategoryUrlTest()
    {
        host.appService.major = static_cast<tarnnuq::Major>(GetParam().major);
        host.appService.version = GetParam().version;
    }
};

/// A case in which the text goes over the wire as it is.
RequestCase PlainCase(const char* name, int major, const std::wstring& version, const QByteArray& query)
{
    return {{name}, major, version, QString(), QString::fromLatin1(query), query};
}

RequestCase KeywordCase(const char* name, const char* keyword, const QByteArray& encoded)
{
    const QByteArray query = "component_type=system&major=&software_version=1.0&keyword=" + encoded;
    return {{name}, -1, L"1.0", QString::fromUtf8(keyword), QString::fromLatin1(query), query};
}

RequestCase VersionCase(const char* name, const char* version, const QByteArray& onTheWire)
{
    const QString text = QStringLiteral("component_type=system&major=&software_version=") + QString::fromUtf8(version);
    return {{name}, -1, QString::fromUtf8(version).toStdWString(), QString(), text,
        "component_type=system&major=&software_version=" + onTheWire};
}

/// An endpoint with place markers of its own.
class PublicCategoryMarkersTest : public PublicCategoryRequestTest
{
protected:
    PublicCategoryMarkersTest() : PublicCategoryRequestTest(QStringLiteral("/%1/%2")) {}
};

} // namespace

TEST_P(PublicCategoryUrlTest, NamesMajorVersionAndKeyword)
{
    Send(GetParam().keyword);
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests()[0].method, "GET");
    EXPECT_EQ(server.Requests()[0].target, "/api/v3/categories?" + GetParam().query);
    EXPECT_EQ(host.logger.Records().front(), InfoRecord(QStringLiteral("request:") + UrlText(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Major, PublicCategoryUrlTest,
    ::testing::Values(PlainCase("None", -1, L"1.0", "component_type=system&major=&software_version=1.0"),
        PlainCase("Plumbing", 0, L"1.0", "component_type=system&major=0&software_version=1.0"),
        PlainCase("Hvac", 1, L"2.7", "component_type=system&major=1&software_version=2.7"),
        PlainCase("Electrical", 2, L"", "component_type=system&major=2&software_version=")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(Keyword, PublicCategoryUrlTest,
    ::testing::Values(KeywordCase("Plain", "pump", "pump"), KeywordCase("Blank", "a b", "a%20b"),
        KeywordCase("OnlyABlank", " ", "%20"), KeywordCase("Chinese", "阀门", "%E9%98%80%E9%97%A8"),
        KeywordCase("Percent", "50%", "50%25"), KeywordCase("PercentAndDigits", "%20", "%2520"),
        KeywordCase("Ampersand", "a&b=c", "a%26b%3Dc"), KeywordCase("PlusAndHash", "a+b#c", "a%2Bb%23c"),
        KeywordCase("PlaceMarker", "%1%2", "%251%252"), KeywordCase("BeyondTheFirstPlane", "𠮷", "%F0%A0%AE%B7")),
    testsupport::RowName());

INSTANTIATE_TEST_SUITE_P(Version, PublicCategoryUrlTest,
    ::testing::Values(VersionCase("Blank", "1.0 beta", "1.0%20beta"), VersionCase("Chinese", "版", "%E7%89%88"),
        VersionCase("EncodedAlready", "a%26b", "a%26b"), VersionCase("PlaceMarkers", "%1-%2-%3", "%251-%252-%253")),
    testsupport::RowName());

TEST_F(PublicCategoryMarkersTest, TextsWithPlaceMarkersArriveAsTheyAre)
{
    host.appService.version = L"%3";
    Send(QStringLiteral("%1"));
    EXPECT_EQ(host.logger.Texts().front(),
        QStringLiteral("request:") + server.BaseUrl() +
            QStringLiteral("/%1/%2/v3/categories?component_type=system&major=&software_version=%3&keyword=%251"));
    EXPECT_EQ(server.Requests().at(0).Path(), "/%251/%252/v3/categories");
}

TEST_F(PublicCategoryRequestTest, AsksTheHostForAVersionOfTwoNumbersEachTime)
{
    Send({});
    Send({});
    EXPECT_EQ(host.appService.formats, (std::vector<std::wstring>{L"0.0", L"0.0"}));
}

TEST_F(PublicCategoryRequestTest, AnEmptyKeywordAddsNothing)
{
    Send(QString());
    Send(QStringLiteral(""));
    for (const testsupport::ReceivedRequest& request : server.Requests()) {
        EXPECT_EQ(request.Query(), "component_type=system&major=&software_version=1.0");
    }
}

TEST_F(PublicCategoryRequestTest, CarriesTheTokenOfTheEnvironment)
{
    host.userService.token = L"prod-token";
    host.userService.tokenInQa = L"qa-token";
    Send({});
    host.baseConfig.currentEnv = "QA";
    Send({});
    ASSERT_EQ(server.Requests().size(), 2U);
    EXPECT_EQ(server.Requests()[0].Header("Authorization"), "prod-token");
    EXPECT_EQ(server.Requests()[1].Header("Authorization"), "bearer qa-token");
}

TEST_F(PublicCategoryRequestTest, LogsRequestHeaderAndBodyInThisOrder)
{
    const QByteArray body = R"({"code":"success","data":[{"id":1,"name":"水 \u0041"}],"more":"\r\n"} )";
    Request(ScriptedResponse::Json(body));
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{
            InfoRecord(QStringLiteral("request:") +
                       UrlText(QStringLiteral("component_type=system&major=&software_version=1.0"))),
            HeaderRecord(QStringLiteral("token")), InfoRecord(QString::fromUtf8(body))}));
}

TEST_F(PublicCategoryRequestTest, LogsAnHttpErrorBeforeTheBody)
{
    Request(ScriptedResponse::Json("{\"code\":\"坏\"}", 404));
    const std::vector<LogRecord>& records = host.logger.Records();
    ASSERT_EQ(records.size(), 4U);
    const QString url = UrlText(QStringLiteral("component_type=system&major=&software_version=1.0"));
    EXPECT_EQ(records[2], ErrorRecord(QStringLiteral("request error. code:404, message:Error transferring ") + url +
                                      QStringLiteral(" - server replied: Not Found")));
    EXPECT_EQ(records[3], InfoRecord(QStringLiteral("{\"code\":\"坏\"}")));
}

TEST_F(PublicCategoryRequestTest, LogsAClosedConnectionWithoutAStatus)
{
    // Every time: a request whose connection closes without an answer is sent again by Qt.
    server.On("/api/v3/categories", ScriptedResponse::Json("{}").CutAt(ScriptedResponse::CutPoint::BeforeHeaders));
    Service().RequestCategories(QString());
    EXPECT_TRUE(testsupport::WaitFor([this] { return announced.size() == 1; }));
    const std::vector<LogRecord>& records = host.logger.Records();
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[2], ErrorRecord(QStringLiteral("request error. code:0, message:Connection closed")));
    EXPECT_EQ(records[3], InfoRecord(QString()));
}

TEST_F(PublicCategoryRequestTest, PlaceMarkersInAnErrorsMessageStay)
{
    Request(ScriptedResponse::Status(500).WithReason("%1 %2"));
    EXPECT_TRUE(host.logger.Records().at(2).Text().endsWith(QStringLiteral("server replied: %1 %2")));
}

TEST_F(PublicCategoryRequestTest, LogsABodyThatHoldsANulWhole)
{
    Request(ScriptedResponse::Status(200, QByteArray("a\0b", 3)));
    EXPECT_EQ(host.logger.Records().back(), InfoRecord(QString::fromLatin1("a\0b", 3)));
}

TEST_F(PublicCategoryRequestTest, OnlyGoodBodiesAreSilentAboutErrors)
{
    Request(ScriptedResponse::Json("no json"));
    Request(ScriptedResponse::Json("{\"code\":\"fail\"}"));
    EXPECT_TRUE(host.logger.RecordsOf(LogRecord::Operation::Error).empty());
}

TEST_F(PublicCategoryRequestTest, ReturnsAtOnce)
{
    server.Enqueue(ScriptedResponse::Json(NoCategories));
    Service().RequestCategories(QString());
    EXPECT_TRUE(announced.empty());
    EXPECT_EQ(host.logger.Records().size(), 2U);
    EXPECT_TRUE(testsupport::WaitFor([this] { return announced.size() == 1; }));
}

TEST_F(PublicCategoryRequestTest, ReleasesItsReply)
{
    server.Enqueue(ScriptedResponse::Json(NoCategories));
    Service().RequestCategories(QString());
    const QPointer<QNetworkReply> reply(access->Manager()->findChild<QNetworkReply*>());
    ASSERT_FALSE(reply.isNull());
    EXPECT_TRUE(testsupport::WaitFor([&reply] { return reply.isNull(); }));
    EXPECT_EQ(announced.size(), 1U);
}

TEST_F(PublicCategoryRequestTest, KeepsTheEndPointOfItsBeginning)
{
    folder.WriteEndPoints(QStringLiteral("http://127.0.0.1:1"), QString());
    host.baseConfig.currentEnv = "qa";
    Send({});
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(PublicCategoryRequestTest, WithoutANetworkManagerItWarnsAndSendsNothing)
{
    access->SetManager(nullptr);
    Service().RequestCategories(QStringLiteral("x"));
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "CategorySvcs/PublicCategoryService.cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::PublicCategoryService::RequestCategories");
    EXPECT_EQ(warning.message, L"m_spNetworkManager 为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-25");
    // The request was prepared all the same.
    EXPECT_EQ(host.logger.Records().size(), 2U);
    EXPECT_TRUE(announced.empty());
}

TEST_F(PublicCategoryRequestTest, AManagerThatDiesTakesItsRequestsAlongInSilence)
{
    server.Enqueue(ScriptedResponse::Json(NoCategories).Delayed(std::chrono::milliseconds(20)));
    Service().RequestCategories(QString());
    access->SetManager(std::make_shared<QNetworkAccessManager>());
    Request(ScriptedResponse::Json(NoCategories));
    EXPECT_EQ(announced.size(), 1U);
}

namespace {

class PublicCategoryWithoutEndPointTest : public ::testing::Test
{
protected:
    testsupport::RecordingHost host;
};

} // namespace

TEST_F(PublicCategoryWithoutEndPointTest, TheRequestFailsLikeAnyOther)
{
    tarnnuq::PublicCategoryServiceAccess access;
    host.logger.Clear();
    int announced = 0;
    QObject::connect(
        &access.Service(), &tarnnuq::PublicCategoryService::OnCategoriesUpdated, [&announced] { ++announced; });
    access.Service().RequestCategories(QString());
    EXPECT_EQ(announced, 0);
    EXPECT_TRUE(testsupport::WaitFor([&announced] { return announced == 1; }));
    EXPECT_EQ(host.logger.Texts().front(),
        QStringLiteral("request:/v3/categories?component_type=system&major=&software_version=1.0"));
    EXPECT_EQ(host.logger.RecordsOf(LogRecord::Operation::Error).size(), 1U);
}
