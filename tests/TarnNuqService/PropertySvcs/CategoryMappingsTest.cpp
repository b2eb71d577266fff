#include "TarnNuqService/PropertySvcs/CloudFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/NamedCase.h"

using tarnnuq::ICategoryMapping;
using testsupport::Describe;
using testsupport::LogRecord;
using testsupport::ScriptedResponse;
using testsupport::ServiceWarning;

namespace {

using Reply = tarnnuq::CustomReply<tarnnuq::RecordList<ICategoryMapping>>;

const QByteArray OneMapping =
    R"({"code":"success","data":[{"categoryId":7,"categoryCode":"c7","name":["水","阀"],"major":1,)"
    R"("componentEditorCategoryId":"e7"}]})";
const QString Caption =
    QStringLiteral("request for component editor category mappings from pyx property module. request url: ");
constexpr const char* Path = "/api/v1/hox_design/category/mappings";

class CategoryMappingsTest : public testsupport::CloudFixture
{
protected:
    Reply* Request(const std::wstring& version = L"1.0")
    {
        return Service().GetComponentEditorCategoryMappings(version);
    }

    std::unique_ptr<Reply> Answered(const ScriptedResponse& response)
    {
        server.On(Path, response);
        return Finish(Request());
    }

    const QString url = ApiUrl(QStringLiteral("/v1/hox_design/category/mappings?software_version=1.0"));
};

/// A version, its text in the log, and the query on the wire.
struct VersionCase : testsupport::NamedCase
{
    std::wstring version;
    const char* logged;
    const char* sent;
};

class MappingsVersionTest : public CategoryMappingsTest, public ::testing::WithParamInterface<VersionCase>
{
};

struct FailureCase : testsupport::NamedCase
{
    ScriptedResponse response;
    QString error;
};

class MappingsFailureTest : public CategoryMappingsTest, public ::testing::WithParamInterface<FailureCase>
{
};

} // namespace

TEST_P(MappingsVersionTest, StandsInTheAddressAsItIs)
{
    server.Enqueue(ScriptedResponse::Json(OneMapping));
    Finish(Request(GetParam().version));
    EXPECT_EQ(host.logger.Texts().front(),
        Caption + ApiUrl(QStringLiteral("/v1/hox_design/category/mappings?software_version=") +
                         QString::fromUtf8(GetParam().logged)));
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests().front().method, "GET");
    EXPECT_EQ(server.Requests().front().Path(), Path);
    EXPECT_EQ(server.Requests().front().Query(), GetParam().sent);
}

INSTANTIATE_TEST_SUITE_P(Versions, MappingsVersionTest,
    ::testing::Values(VersionCase{{"Plain"}, L"2022.1", "2022.1", "software_version=2022.1"},
        VersionCase{{"Empty"}, L"", "", "software_version="},
        VersionCase{{"NotEncodedBeforehand"}, L"1 &x=版", "1 &x=版", "software_version=1%20&x=%E7%89%88"},
        VersionCase{{"PlaceMarker"}, L"%2", "%2", "software_version=%252"}),
    testsupport::RowName());

TEST_F(CategoryMappingsTest, AreRecordsWhenTheReplyHasBeenHandled)
{
    const auto pending = Answered(ScriptedResponse::Json(OneMapping));
    ICategoryMapping expected;
    expected.CategoryId = 7;
    expected.CategoryCode = L"c7";
    expected.Names = {L"水", L"阀"};
    expected.Major = ICategoryMapping::Hvac;
    expected.ComponentEditorCategoryId = L"e7";
    EXPECT_EQ(pending->Error(), L"");
    const auto mappings = pending->Result();
    ASSERT_EQ(mappings.size(), 1U);
    EXPECT_EQ(Describe(*mappings.front()), Describe(expected));
}

TEST_F(CategoryMappingsTest, AreNotThereYetWhenTheCallReturns)
{
    server.Enqueue(ScriptedResponse::Json(OneMapping));
    std::unique_ptr<Reply> pending(Request());
    EXPECT_TRUE(pending->Result().empty());
    EXPECT_EQ(pending->parent(), nullptr);
    EXPECT_TRUE(server.Requests().empty());
    pending = Finish(pending.release());
    EXPECT_EQ(pending->Result().size(), 1U);
}

TEST_F(CategoryMappingsTest, LogRequestHeaderAndReplyInThisOrder)
{
    Answered(ScriptedResponse::Json(OneMapping));
    EXPECT_EQ(
        host.logger.Records(), (std::vector<LogRecord>{InfoRecord(Caption + url), HeaderRecord(QStringLiteral("token")),
                                   {LogRecord::Operation::Info,
                                       {QStringLiteral("succeed to get response from ") + url + QStringLiteral("\r\n"),
                                           QStringLiteral("response body:") + QString::fromUtf8(OneMapping)}}}));
}

TEST_F(CategoryMappingsTest, CarryTheTokenOfTheEnvironment)
{
    server.On(Path, ScriptedResponse::Json(OneMapping));
    Finish(Request());
    host.baseConfig.currentEnv = "qa";
    Finish(Request());
    ASSERT_EQ(server.Requests().size(), 2U);
    EXPECT_EQ(server.Requests()[0].Header("Authorization"), "token");
    EXPECT_EQ(server.Requests()[1].Header("Authorization"), "bearer token-in-qa");
}

TEST_F(CategoryMappingsTest, WithoutANetworkManagerAreNullAndAWarning)
{
    Access().SetManager(nullptr);
    EXPECT_EQ(Request(), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetComponentEditorCategoryMappings", L"pCustomReply 为空")});
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{InfoRecord(Caption + url), HeaderRecord(QStringLiteral("token"))}));
}

TEST_F(CategoryMappingsTest, APendingReplyDeletedBeforeItsEndTakesItsRequestAlong)
{
    server.On(Path, ScriptedResponse::Json(OneMapping).Delayed(std::chrono::milliseconds(20)));
    delete Request();
    EXPECT_EQ(Finish(Request())->Result().size(), 1U);
    EXPECT_EQ(Access().Manager()->findChildren<QNetworkReply*>().size(), 0);
}

TEST_P(MappingsFailureTest, EndsInItsErrorAndNoRecords)
{
    const auto pending = Answered(GetParam().response);
    EXPECT_EQ(pending->Error(), QString(GetParam().error).replace(QLatin1String("URL"), url).toStdWString());
    EXPECT_TRUE(pending->Result().empty());
    testsupport::ExpectWarnings(host, {});
}

INSTANTIATE_TEST_SUITE_P(Answers, MappingsFailureTest,
    ::testing::Values(FailureCase{{"ServerFault"}, ScriptedResponse::Json(OneMapping, 500),
                          QStringLiteral("request error: http code - 500, message - Error transferring URL - server "
                                         "replied: Internal Server Error")},
        FailureCase{{"ClosedAfterTheHeaders"},
            ScriptedResponse::Json(OneMapping).CutAt(ScriptedResponse::CutPoint::AfterHeaders),
            QStringLiteral("request error: http code - 200, message - Connection closed")},
        FailureCase{{"ClosedBeforeTheHeaders"},
            ScriptedResponse::Json(OneMapping).CutAt(ScriptedResponse::CutPoint::BeforeHeaders),
            QStringLiteral("request error: http code - 0, message - Connection closed")},
        FailureCase{{"HalfAReplyWithoutALength"},
            ScriptedResponse::Json(OneMapping.left(30)).WithFraming(ScriptedResponse::Framing::UntilClose),
            QStringLiteral("fail to parse response body:error type - 10")},
        FailureCase{{"Refused"}, ScriptedResponse::Json(R"({"code":401,"message":"请登录"})"),
            QStringLiteral("internal request error: custom code - , message - 请登录")},
        FailureCase{{"DataOfAnotherKind"}, ScriptedResponse::Json(R"({"code":" SUCCESS ","data":{}})"), QString()}),
    testsupport::RowName());
