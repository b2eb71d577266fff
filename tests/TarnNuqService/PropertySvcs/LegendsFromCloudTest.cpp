#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "TarnNuqService/PropertySvcs/CloudFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

#include <QPointer>

using tarnnuq::ILegend;
using testsupport::Describe;
using testsupport::LogRecord;
using testsupport::ScriptedResponse;
using testsupport::ServiceWarning;

namespace {

using Reply = tarnnuq::CustomReply<tarnnuq::RecordPage<ILegend>>;

const QByteArray OneLegend =
    R"({"code":"success","data":{"totalCount":41,"list":[{"id":12345678901,"name":"阀","placeholderType":2,)"
    R"("thumbnail":"a.png","standardSource":"GB"}]}})";
const QString Caption = QStringLiteral("request for legends from pyx digital component module. request url: ");

/// Where a pending reply stores its handler; nothing else shows it. Only the names in explicit instantiations are free
/// of access rules.
template <auto Member>
struct StoredHandler
{
    friend std::shared_ptr<tarnnuq::IResponseHandler<tarnnuq::RecordPage<ILegend>>>& HandlerOf(Reply& pending)
    {
        return pending.*Member;
    }
};
template struct StoredHandler<&Reply::m_responseHandler>;
std::shared_ptr<tarnnuq::IResponseHandler<tarnnuq::RecordPage<ILegend>>>& HandlerOf(Reply& pending);

class LegendsFromCloudTest : public testsupport::CloudFixture
{
protected:
    Reply* Request(const std::wstring& code = L"c1", ILegend::LegendType type = ILegend::Plan, int pageSize = 20,
        int page = 1, const std::wstring& version = L"1.0")
    {
        return Service().GetLegendsFromCloud(code, type, pageSize, page, version);
    }

    /// Requests the legends and waits for this answer.
    std::unique_ptr<Reply> Answered(const ScriptedResponse& response)
    {
        server.On("/api/v1/metadata/placeholders", response);
        return Finish(Request());
    }

    const QString url = ApiUrl(
        QStringLiteral("/v1/metadata/placeholders?category_code=c1&type=0&page_size=20&page=1&software_version=1.0"));
};

/// The values of a request, its text in the log, and its query on the wire.
struct RequestCase : testsupport::NamedCase
{
    std::wstring code;
    ILegend::LegendType type;
    int pageSize;
    int page;
    std::wstring version;
    const char* logged;
    const char* sent;
};

class LegendsRequestTest : public LegendsFromCloudTest, public ::testing::WithParamInterface<RequestCase>
{
};

struct FailureCase : testsupport::NamedCase
{
    ScriptedResponse response;
    QString error;
};

class LegendsFailureTest : public LegendsFromCloudTest, public ::testing::WithParamInterface<FailureCase>
{
};

} // namespace

TEST_P(LegendsRequestTest, FillsTheAddressAsItIs)
{
    const RequestCase& row = GetParam();
    server.Enqueue(ScriptedResponse::Json(OneLegend));
    Finish(Request(row.code, row.type, row.pageSize, row.page, row.version));
    EXPECT_EQ(host.logger.Texts().front(),
        Caption + ApiUrl(QStringLiteral("/v1/metadata/placeholders?") + QString::fromUtf8(row.logged)));
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests().front().method, "GET");
    EXPECT_EQ(server.Requests().front().Path(), "/api/v1/metadata/placeholders");
    EXPECT_EQ(server.Requests().front().Query(), row.sent);
}

INSTANTIATE_TEST_SUITE_P(Values, LegendsRequestTest,
    ::testing::Values(RequestCase{{"Plan"}, L"c1", ILegend::Plan, 20, 1, L"1.0",
                          "category_code=c1&type=0&page_size=20&page=1&software_version=1.0",
                          "category_code=c1&type=0&page_size=20&page=1&software_version=1.0"},
        RequestCase{{"Elevation"}, L"c1", ILegend::Elevation, 1, 20, L"2.5",
            "category_code=c1&type=1&page_size=1&page=20&software_version=2.5",
            "category_code=c1&type=1&page_size=1&page=20&software_version=2.5"},
        RequestCase{{"Profile"}, L"c1", ILegend::Profile, 0, 0, L"",
            "category_code=c1&type=2&page_size=0&page=0&software_version=",
            "category_code=c1&type=2&page_size=0&page=0&software_version="},
        RequestCase{{"UnknownView"}, L"", ILegend::Unknown, -1, -2147483647 - 1, L"x",
            "category_code=&type=-1&page_size=-1&page=-2147483648&software_version=x",
            "category_code=&type=-1&page_size=-1&page=-2147483648&software_version=x"},
        RequestCase{{"NothingIsEncodedBeforehand"}, L"a b&x=阀", ILegend::Plan, 20, 1, L"1+1 ",
            "category_code=a b&x=阀&type=0&page_size=20&page=1&software_version=1+1 ",
            "category_code=a%20b&x=%E9%98%80&type=0&page_size=20&page=1&software_version=1+1%20"},
        RequestCase{{"PlaceMarkersStay"}, L"%2%6", ILegend::Plan, 20, 1, L"%1",
            "category_code=%2%6&type=0&page_size=20&page=1&software_version=%1",
            "category_code=%252%256&type=0&page_size=20&page=1&software_version=%251"}),
    testsupport::RowName());

TEST_F(LegendsFromCloudTest, AreAPageOfRecordsWhenTheReplyHasBeenHandled)
{
    const auto pending = Answered(ScriptedResponse::Json(OneLegend));
    ILegend expected;
    expected.Id = 12345678901;
    expected.Name = L"阀";
    expected.Type = ILegend::Profile;
    expected.Thumbnail = L"http://static/s/a.png";
    expected.StandardSource = L"GB";
    EXPECT_EQ(pending->Error(), L"");
    EXPECT_EQ(pending->Result().TotalCount, 41);
    ASSERT_EQ(pending->Result().List.size(), 1U);
    EXPECT_EQ(Describe(*pending->Result().List.front()), Describe(expected));
}

TEST_F(LegendsFromCloudTest, AreNotThereYetWhenTheCallReturns)
{
    server.Enqueue(ScriptedResponse::Json(OneLegend));
    std::unique_ptr<Reply> pending(Request());
    EXPECT_TRUE(pending->Result().List.empty());
    EXPECT_EQ(pending->Error(), L"");
    EXPECT_EQ(pending->parent(), nullptr);
    EXPECT_TRUE(server.Requests().empty());
    pending = Finish(pending.release());
    EXPECT_EQ(pending->Result().List.size(), 1U);
}

TEST_F(LegendsFromCloudTest, KeepANewHandlerForPagesOfLegendsEach)
{
    server.On("/api/v1/metadata/placeholders", ScriptedResponse::Json(OneLegend));
    const std::unique_ptr<Reply> first(Request());
    const std::unique_ptr<Reply> second(Request());
    EXPECT_TRUE(dynamic_cast<tarnnuq::PagedLegendsResponseHandler*>(HandlerOf(*first).get()));
    EXPECT_TRUE(dynamic_cast<tarnnuq::PagedLegendsResponseHandler*>(HandlerOf(*second).get()));
    EXPECT_NE(HandlerOf(*first), HandlerOf(*second));
    EXPECT_NE(HandlerOf(*first).get(), tarnnuq::ResponseHandlerRegistry::Get<tarnnuq::RecordPage<ILegend>>());
}

TEST_F(LegendsFromCloudTest, LogRequestHeaderAndReplyInThisOrder)
{
    Answered(ScriptedResponse::Json(OneLegend));
    const std::vector<LogRecord>& records = host.logger.Records();
    // The handler reads the environment files' endpoint, which has been read before: no records of those.
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0], InfoRecord(Caption + url));
    EXPECT_EQ(records[1], HeaderRecord(QStringLiteral("token")));
    EXPECT_EQ(records[2], InfoRecord(QStringLiteral("succeed to get response from ") + url +
                                     QStringLiteral(". response body:") + QString::fromUtf8(OneLegend)));
}

TEST_F(LegendsFromCloudTest, CarryTheTokenOfTheEnvironment)
{
    server.On("/api/v1/metadata/placeholders", ScriptedResponse::Json(OneLegend));
    host.userService.token = L"prod-token";
    host.userService.tokenInQa = L"qa-token";
    Finish(Request());
    host.baseConfig.currentEnv = "Qa";
    Finish(Request());
    host.userService.tokenInQa = L"";
    Finish(Request());
    const auto requests = server.Requests();
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[0].Header("Authorization"), "prod-token");
    EXPECT_EQ(requests[1].Header("Authorization"), "bearer qa-token");
    EXPECT_EQ(requests[2].Header("Authorization"), "");
    EXPECT_EQ(requests[2].HeaderCount("Authorization"), 1);
}

TEST_F(LegendsFromCloudTest, KeepTheEndPointOfTheServicesBeginning)
{
    folder.WriteEndPoints(QStringLiteral("http://127.0.0.1:1"), QString());
    EXPECT_EQ(Answered(ScriptedResponse::Json(OneLegend))->Error(), L"");
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(LegendsFromCloudTest, TwoAtOnceGetTheirOwnAnswers)
{
    const QByteArray query = "/api/v1/metadata/placeholders?category_code=c1&type=0&page_size=20&software_version=1.0";
    server.On("/api/v1/metadata/placeholders?category_code=c1&type=0&page_size=20&page=1&software_version=1.0",
        ScriptedResponse::Json(OneLegend).Delayed(std::chrono::milliseconds(50)));
    server.On("/api/v1/metadata/placeholders?category_code=c1&type=0&page_size=20&page=2&software_version=1.0",
        ScriptedResponse::Json(R"({"code":"success","data":{"totalCount":2,"list":[]}})"));
    std::unique_ptr<Reply> slow(Request());
    const auto quick = Finish(Request(L"c1", ILegend::Plan, 20, 2));
    EXPECT_EQ(quick->Result().TotalCount, 2);
    slow = Finish(slow.release());
    EXPECT_EQ(slow->Result().TotalCount, 41);
}

TEST_F(LegendsFromCloudTest, AReceiverMayDeleteThePendingReply)
{
    server.Enqueue(ScriptedResponse::Json(OneLegend));
    const QPointer<Reply> pending(Request());
    QObject::connect(pending, &tarnnuq::CustomReplyBase::Finished, [&pending] { delete pending; });
    EXPECT_TRUE(testsupport::WaitFor([&pending] { return pending.isNull(); }));
}

TEST_F(LegendsFromCloudTest, AManagerThatDiesTakesItsRequestsAlongInSilence)
{
    server.On(
        "/api/v1/metadata/placeholders", ScriptedResponse::Json(OneLegend).Delayed(std::chrono::milliseconds(20)));
    const std::unique_ptr<Reply> forgotten(Request());
    const QSignalSpy finished(forgotten.get(), &tarnnuq::CustomReplyBase::Finished);
    Access().SetManager(std::make_shared<QNetworkAccessManager>());
    Finish(Request());
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(forgotten->Error(), L"");
}

TEST_F(LegendsFromCloudTest, WithoutANetworkManagerAreNullAndAWarning)
{
    Access().SetManager(nullptr);
    EXPECT_EQ(Request(), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetLegendsFromCloud", L"m_spNetworkManager 为空")});
    // The request was prepared all the same.
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{InfoRecord(Caption + url), HeaderRecord(QStringLiteral("token"))}));
}

TEST_P(LegendsFailureTest, EndsInItsErrorAndAnEmptyPage)
{
    const auto pending = Answered(GetParam().response);
    EXPECT_EQ(pending->Error(), QString(GetParam().error).replace(QLatin1String("URL"), url).toStdWString());
    EXPECT_TRUE(pending->Result().List.empty());
    EXPECT_EQ(pending->Result().TotalCount, 0);
    testsupport::ExpectWarnings(host, {});
}

INSTANTIATE_TEST_SUITE_P(Answers, LegendsFailureTest,
    ::testing::Values(FailureCase{{"NotFound"}, ScriptedResponse::Json(OneLegend, 404),
                          QStringLiteral("request error:http code - 404, message - Error transferring URL - server "
                                         "replied: Not Found")},
        FailureCase{{"SignedOut"}, ScriptedResponse::Json("{}", 401),
            QStringLiteral("request error:http code - 401, message - Host requires authentication")},
        FailureCase{{"ClosedBeforeTheHeaders"},
            ScriptedResponse::Json(OneLegend).CutAt(ScriptedResponse::CutPoint::BeforeHeaders),
            QStringLiteral("request error:http code - 0, message - Connection closed")},
        FailureCase{{"ClosedWithinTheBody"},
            ScriptedResponse::Json(OneLegend).CutAt(ScriptedResponse::CutPoint::WithinBody),
            QStringLiteral("request error:http code - 200, message - Connection closed")},
        FailureCase{{"LengthTooLarge"}, ScriptedResponse::Json(OneLegend).WithDeclaredLength(100000),
            QStringLiteral("request error:http code - 200, message - Connection closed")},
        FailureCase{{"NoStatusLine"}, ScriptedResponse::Raw("nonsense\r\n\r\n"),
            QStringLiteral("request error:http code - 0, message - Connection closed")},
        FailureCase{{"Redirect"}, ScriptedResponse::Redirect("/elsewhere"),
            QStringLiteral("fail to parse response body:error type - 5")},
        FailureCase{
            {"EmptyBody"}, ScriptedResponse::Json(""), QStringLiteral("fail to parse response body:error type - 5")},
        FailureCase{{"Page"}, ScriptedResponse::Content("<html></html>", "text/html"),
            QStringLiteral("fail to parse response body:error type - 5")},
        FailureCase{{"Refused"}, ScriptedResponse::Json(R"({"code":"E1","message":"no"})"),
            QStringLiteral("internal request error: custom code - E1, message - no")},
        FailureCase{{"NoEnvelope"}, ScriptedResponse::Json("{}"),
            QStringLiteral("internal request error: custom code - , message - ")},
        FailureCase{{"NoData"}, ScriptedResponse::Json(R"({"code":"success"})"), QString()},
        FailureCase{{"DataOfAnotherKind"}, ScriptedResponse::Json(R"({"code":"success","data":[1]})"), QString()}),
    testsupport::RowName());
