#include "nuq-cloud/support/CloudProcess.h"
#include "support/NuqRunner.h"

#include <gtest/gtest.h>

namespace nuqtest {
namespace {

struct OrderedFault
{
    const char* order;
    int exitCode;
    const char* code;
};

void PrintTo(const OrderedFault& fault, std::ostream* out)
{
    *out << fault.order;
}

/// The program beside a stand-in cloud that misbehaves on order.
class CloudFaultsTest : public ::testing::TestWithParam<OrderedFault>
{
};

TEST_P(CloudFaultsTest, HasItsExitCodeAndItsName)
{
    NuqRunner runner;
    runner.environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("demo-token"));
    cloudtest::CloudProcess cloud({QStringLiteral("--library"), QStringLiteral(NUQ_SAMPLE_LIBRARY),
        QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--quiet"), QStringLiteral("--write-config"),
        runner.ApplicationFolder(), QStringLiteral("--fault"), QLatin1String(GetParam().order)});
    ASSERT_TRUE(cloud.WaitUntilReady()) << cloud.Errors();
    const NuqResult result = runner.Run({"categories", "--json", "--timeout", "2"});
    EXPECT_EQ(result.code, GetParam().exitCode) << result.out << result.err;
    EXPECT_EQ(
        result.out.substr(0, result.out.find(",\"details\"")), std::string("{\"code\":\"") + GetParam().code + "\"");
    EXPECT_EQ(result.err.substr(0, 5), "nuq: ");
}

INSTANTIATE_TEST_SUITE_P(Each, CloudFaultsTest,
    ::testing::Values(OrderedFault{"status=401", 4, "auth.signed_out"},
        OrderedFault{"unauthorized", 4, "auth.signed_out"}, OrderedFault{"forbidden", 4, "auth.forbidden"},
        OrderedFault{"status=404", 3, "not_found"}, OrderedFault{"status=400", 6, "server.rejected"},
        OrderedFault{"status=500", 6, "server.fault"}, OrderedFault{"status-empty=500", 6, "server.fault"},
        OrderedFault{"status-html=502", 6, "server.unavailable"},
        OrderedFault{"rate-limit=3600", 6, "server.rate_limited"},
        OrderedFault{"rate-limit-date=3600", 6, "server.rate_limited"},
        OrderedFault{"unavailable=3600", 6, "server.unavailable"},
        OrderedFault{"not-success=BUSY", 6, "server.rejected"},
        OrderedFault{"redirect-loop", 6, "server.redirect_loop"},
        OrderedFault{"redirect=ftp://h/x", 6, "server.redirect_refused"}, OrderedFault{"html", 6, "server.html_page"},
        OrderedFault{"empty", 6, "server.empty_answer"}, OrderedFault{"no-content", 6, "server.empty_answer"},
        OrderedFault{"partial", 6, "server.partial_answer"},
        OrderedFault{"not-modified", 6, "server.unexpected_status"},
        OrderedFault{"truncated-json", 6, "server.bad_answer"}, OrderedFault{"invalid-json", 6, "server.bad_answer"},
        OrderedFault{"array", 6, "server.wrong_shape"}, OrderedFault{"null-data", 6, "server.wrong_shape"},
        OrderedFault{"deep=10000", 6, "server.bad_answer"}, OrderedFault{"stall-before-headers", 5, "network.timeout"},
        OrderedFault{"stall=10", 5, "network.timeout"}, OrderedFault{"drip=10", 5, "network.timeout"},
        OrderedFault{"close-before-headers", 5, "network.closed"},
        OrderedFault{"close-after-headers", 5, "network.closed"}, OrderedFault{"truncate=10", 5, "network.closed"},
        OrderedFault{"length-too-long=10", 5, "network.closed"},
        OrderedFault{"length-too-short=10", 6, "server.bad_answer"},
        OrderedFault{"no-status-line", 5, "network.closed"}, OrderedFault{"close-in-headers", 5, "network.closed"},
        OrderedFault{"duplicate-keys", 6, "server.rejected"}, OrderedFault{"invalid-utf8", 6, "server.bad_answer"},
        OrderedFault{"broken-chunk", 6, "server.empty_answer"}, OrderedFault{"huge-body", 6, "server.wrong_shape"},
        OrderedFault{"bad-status", 5, "network.closed"}, OrderedFault{"reset=10", 5, "network.closed"}));

/// Faults after which the answer is still right, or at least still data.
class HarmlessFaultsTest : public ::testing::TestWithParam<const char*>
{
};

TEST_P(HarmlessFaultsTest, ChangeNothing)
{
    NuqRunner runner;
    runner.environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("demo-token"));
    cloudtest::CloudProcess cloud({QStringLiteral("--library"), QStringLiteral(NUQ_SAMPLE_LIBRARY),
        QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--quiet"), QStringLiteral("--write-config"),
        runner.ApplicationFolder(), QStringLiteral("--fault"), QLatin1String(GetParam())});
    ASSERT_TRUE(cloud.WaitUntilReady()) << cloud.Errors();
    const NuqResult result = runner.Run({"categories", "--json", "--timeout", "5"});
    EXPECT_EQ(result.code, 0) << result.out << result.err;
    EXPECT_EQ(result.err, "");
}

INSTANTIATE_TEST_SUITE_P(Each, HarmlessFaultsTest,
    ::testing::Values("delay=300", "jitter=200", "no-length", "content-type=text/plain", "broken-gzip", "double-length",
        "wrong-date=31536000", "status=503@/api/v3/categories#1"));

/// TLS as it should not be: each cause has its own name.
class CloudTlsTest : public ::testing::TestWithParam<OrderedFault>
{
};

TEST_P(CloudTlsTest, IsNeverWavedThrough)
{
    NuqRunner runner;
    runner.environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("demo-token"));
    QStringList arguments = {QStringLiteral("--library"), QStringLiteral(NUQ_SAMPLE_LIBRARY), QStringLiteral("--port"),
        QStringLiteral("0"), QStringLiteral("--quiet"), QStringLiteral("--write-config"), runner.ApplicationFolder(),
        QStringLiteral("--tls")};
    if (*GetParam().order != '\0')
        arguments << QStringLiteral("--tls-fault") << QLatin1String(GetParam().order);
    cloudtest::CloudProcess cloud(arguments);
    ASSERT_TRUE(cloud.WaitUntilReady()) << cloud.Errors();
    const NuqResult result = runner.Run({"categories", "--json"});
    EXPECT_EQ(result.code, GetParam().exitCode) << result.out << result.err;
    EXPECT_EQ(
        result.out.substr(0, result.out.find(",\"details\"")), std::string("{\"code\":\"") + GetParam().code + "\"");
}

INSTANTIATE_TEST_SUITE_P(Each, CloudTlsTest,
    ::testing::Values(OrderedFault{"", 5, "network.tls_self_signed"}, OrderedFault{"expired", 5, "network.tls_expired"},
        OrderedFault{"not-yet-valid", 5, "network.tls_not_yet_valid"},
        OrderedFault{"wrong-host", 5, "network.tls_wrong_host"}));

} // namespace
} // namespace nuqtest
