#include "Auth/RequestAuthorization.h"
#include "Auth/PlainAuthorization_p.h"
#include "support/LoopbackServer.h"
#include "support/NamedCase.h"
#include "support/RecordingHost.h"
#include "support/ReplyFetcher.h"

using testsupport::LogRecord;

namespace {

using Authorize = void (*)(QNetworkRequest&);

class AuthorizationTest : public ::testing::Test
{
protected:
    AuthorizationTest() { server.On("/", testsupport::ScriptedResponse::Json("{}")); }

    /// Sends the request; what the server got of it.
    testsupport::ReceivedRequest Send(QNetworkRequest request)
    {
        testsupport::ReplyFetcher().Get(request);
        EXPECT_EQ(server.Requests().size(), 1U);
        return server.Requests().back();
    }

    /// Authorizes a request and sends it; the header's value on the wire, which must be there once.
    QByteArray SentValue(Authorize authorize)
    {
        QNetworkRequest request(server.Url());
        authorize(request);
        const testsupport::ReceivedRequest received = Send(request);
        EXPECT_EQ(received.HeaderCount("Authorization"), 1);
        return received.Header("Authorization");
    }

    static LogRecord HeaderRecord(const QString& value)
    {
        return {LogRecord::Operation::Debug, {QStringLiteral("Authorization header: "), value}};
    }

    testsupport::RecordingHost host;
    testsupport::LoopbackServer server;
};

/// An environment of the host, its two tokens, and the header that goes out.
struct EnvironmentCase : testsupport::NamedCase
{
    std::string environment;
    std::wstring token;
    std::wstring tokenInQa;
    QByteArray value;
};

class EnvironmentAwareAuthorizationTest : public AuthorizationTest,
                                          public ::testing::WithParamInterface<EnvironmentCase>
{
protected:
    EnvironmentAwareAuthorizationTest()
    {
        host.baseConfig.currentEnv = GetParam().environment;
        host.userService.token = GetParam().token;
        host.userService.tokenInQa = GetParam().tokenInQa;
    }
};

/// A variant that never looks at the environment.
struct PlainCase : testsupport::NamedCase
{
    Authorize authorize;
    bool logged;
};

class PlainAuthorizationTest : public AuthorizationTest, public ::testing::WithParamInterface<PlainCase>
{
protected:
    PlainAuthorizationTest()
    {
        host.baseConfig.currentEnv = "qa";
        host.userService.tokenInQa = L"never";
    }

    std::vector<LogRecord> RecordsFor(const QString& value) const
    {
        return GetParam().logged ? std::vector<LogRecord>{HeaderRecord(value)} : std::vector<LogRecord>();
    }
};

} // namespace

TEST_P(EnvironmentAwareAuthorizationTest, SendsAndLogsTheTokenOfTheEnvironment)
{
    EXPECT_EQ(SentValue(tarnnuq::SetEnvironmentAwareAuthorization), GetParam().value);
    EXPECT_EQ(host.logger.Records(), std::vector<LogRecord>{HeaderRecord(QString::fromUtf8(GetParam().value))});
}

INSTANTIATE_TEST_SUITE_P(Environments, EnvironmentAwareAuthorizationTest,
    ::testing::Values(EnvironmentCase{{"Qa"}, "qa", L"prod-token", L"abc", "bearer abc"},
        EnvironmentCase{{"QaInUpperCase"}, "QA", L"prod-token", L"abc", "bearer abc"},
        EnvironmentCase{{"QaInMixedCase"}, "qA", L"prod-token", L"abc", "bearer abc"},
        EnvironmentCase{{"QaWithoutAToken"}, "qa", L"prod-token", L"", ""},
        EnvironmentCase{{"QaTokenWithAScheme"}, "qa", L"prod-token", L"Bearer abc", "bearer Bearer abc"},
        EnvironmentCase{{"Prod"}, "prod", L"abc", L"qa-token", "abc"},
        EnvironmentCase{{"ProdWithoutAToken"}, "prod", L"", L"qa-token", ""},
        EnvironmentCase{{"ProdTokenWithAScheme"}, "prod", L"Bearer abc", L"qa-token", "Bearer abc"},
        EnvironmentCase{{"NoEnvironment"}, "", L"abc", L"qa-token", "abc"},
        EnvironmentCase{{"QaWithABlankBehind"}, "qa ", L"abc", L"qa-token", "abc"},
        EnvironmentCase{{"NameThatBeginsWithQa"}, "qa2", L"abc", L"qa-token", "abc"},
        EnvironmentCase{{"ChineseQaToken"}, "qa", L"abc", L"令牌 Ä", "bearer 令牌 Ä"},
        EnvironmentCase{{"ChineseToken"}, "prod", L"令牌 Ä", L"qa-token", "令牌 Ä"}),
    testsupport::RowName());

TEST_F(AuthorizationTest, ReplacesAHeaderThatWasThere)
{
    QNetworkRequest request(server.Url());
    request.setRawHeader("authorization", "old");
    host.userService.token = L"new";
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    const testsupport::ReceivedRequest received = Send(request);
    EXPECT_EQ(received.HeaderCount("Authorization"), 1);
    EXPECT_EQ(received.Header("Authorization"), "new");
}

TEST_F(AuthorizationTest, ReplacesAHeaderThatWasThereByAnEmptyOne)
{
    QNetworkRequest request(server.Url());
    request.setRawHeader("Authorization", "old");
    host.userService.token.clear();
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    EXPECT_TRUE(request.hasRawHeader("Authorization"));
    EXPECT_EQ(request.rawHeader("Authorization"), "");
    EXPECT_EQ(Send(request).HeaderCount("Authorization"), 1);
}

TEST_F(AuthorizationTest, LeavesTheRestOfTheRequestAlone)
{
    QNetworkRequest request(server.Url());
    request.setRawHeader("X-Other", "kept");
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    EXPECT_EQ(request.url(), server.Url());
    EXPECT_EQ(request.rawHeaderList(), (QList<QByteArray>{"X-Other", "Authorization"}));
    EXPECT_EQ(request.rawHeader("X-Other"), "kept");
}

TEST_F(AuthorizationTest, KeepsNoToken)
{
    QNetworkRequest request;
    host.userService.token = L"first";
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    EXPECT_EQ(request.rawHeader("Authorization"), "first");
    host.userService.token = L"second";
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    EXPECT_EQ(request.rawHeader("Authorization"), "second");
    host.baseConfig.currentEnv = "qa";
    tarnnuq::SetEnvironmentAwareAuthorization(request);
    EXPECT_EQ(request.rawHeader("Authorization"), "bearer token-in-qa");
}

TEST_F(AuthorizationTest, WithoutAConfigurationManagerTheTokenGoesOutAsItIs)
{
    host.Remove(&hostsdk::HostServices::baseConfig);
    EXPECT_EQ(SentValue(tarnnuq::SetEnvironmentAwareAuthorization), "token");
    EXPECT_EQ(host.debugMessages.Messages(), std::vector<std::wstring>{L"pConfigMgr为空"});
}

TEST_F(AuthorizationTest, WithoutAUserTheHeaderIsEmpty)
{
    host.Remove(&hostsdk::HostServices::userService);
    EXPECT_EQ(SentValue(tarnnuq::SetEnvironmentAwareAuthorization), "");
    EXPECT_EQ(host.logger.Records(), std::vector<LogRecord>{HeaderRecord(QString())});
}

TEST_P(PlainAuthorizationTest, SendsTheTokenWhateverTheEnvironment)
{
    host.userService.token = L"abc";
    EXPECT_EQ(SentValue(GetParam().authorize), "abc");
    EXPECT_EQ(host.logger.Records(), RecordsFor(QStringLiteral("abc")));
}

TEST_P(PlainAuthorizationTest, SendsAnEmptyTokenAsAnEmptyHeader)
{
    host.userService.token.clear();
    EXPECT_EQ(SentValue(GetParam().authorize), "");
    EXPECT_EQ(host.logger.Records(), RecordsFor(QString()));
}

TEST_P(PlainAuthorizationTest, SendsTheTokenAsUtf8)
{
    host.userService.token = L"令牌 Ä";
    EXPECT_EQ(SentValue(GetParam().authorize), "令牌 Ä");
    EXPECT_EQ(host.logger.Records(), RecordsFor(QStringLiteral("令牌 Ä")));
}

TEST_P(PlainAuthorizationTest, ReplacesAHeaderThatWasThere)
{
    QNetworkRequest request(server.Url());
    request.setRawHeader("AUTHORIZATION", "old");
    host.userService.token = L"new";
    GetParam().authorize(request);
    const testsupport::ReceivedRequest received = Send(request);
    EXPECT_EQ(received.HeaderCount("Authorization"), 1);
    EXPECT_EQ(received.Header("Authorization"), "new");
}

TEST_P(PlainAuthorizationTest, DoesNotAskForTheEnvironment)
{
    host.Remove(&hostsdk::HostServices::baseConfig);
    QNetworkRequest request;
    GetParam().authorize(request);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}

INSTANTIATE_TEST_SUITE_P(Variants, PlainAuthorizationTest,
    ::testing::Values(PlainCase{{"Logged"}, tarnnuq::SetPlainAuthorization, true},
        PlainCase{{"NotLogged"}, tarnnuq::SetUnloggedPlainAuthorization, false}),
    testsupport::RowName());
