#include "nuq-cloud/support/TestServer.h"

#include <gtest/gtest.h>
#include <ostream>

namespace cloudtest {
namespace {

struct Attempt
{
    const char* path;
    std::vector<std::string> headers;
    int status;
};

void PrintTo(const Attempt& item, std::ostream* out)
{
    *out << item.path << (item.headers.empty() ? "" : " with " + item.headers.front());
}

class TokenCheck : public ::testing::TestWithParam<Attempt>
{
};

TEST_P(TokenCheck, LetsOnlyTheEnvironmentsOwnTokenIn)
{
    const TestServer server;
    EXPECT_EQ(Fetch(server.Port(), GetParam().path, GetParam().headers).Status(), GetParam().status);
}

constexpr char kProduction[] = "/api/v1/projects";
constexpr char kQa[] = "/qa/api/v1/projects";

INSTANTIATE_TEST_SUITE_P(All, TokenCheck,
    ::testing::Values(Attempt{kProduction, {"Authorization: demo-token"}, 200},
        Attempt{kProduction, {"authorization:demo-token"}, 200}, Attempt{kProduction, {}, 401},
        Attempt{kProduction, {"Authorization:"}, 401}, Attempt{kProduction, {"Authorization: demo-toke"}, 401},
        Attempt{kProduction, {"Authorization: demo-token2"}, 401},
        Attempt{kProduction, {"Authorization: Demo-Token"}, 401},
        Attempt{kProduction, {"Authorization: bearer demo-token"}, 401},
        Attempt{kProduction, {"Authorization: demo-token-qa"}, 401},
        Attempt{kProduction, {"Authorization: demo-token", "Authorization: demo-token"}, 401},
        Attempt{kQa, {"Authorization: bearer demo-token-qa"}, 200}, Attempt{kQa, {}, 401},
        Attempt{kQa, {"Authorization: Bearer demo-token-qa"}, 401},
        Attempt{kQa, {"Authorization: bearer  demo-token-qa"}, 401},
        Attempt{kQa, {"Authorization: demo-token-qa"}, 401}, Attempt{kQa, {"Authorization: bearer demo-token"}, 401},
        Attempt{kQa, {"Authorization: bearer "}, 401}, Attempt{"/api/nothing", {}, 401},
        Attempt{"/static/thumbnails/pump/128.png", {}, 200}, Attempt{"/qa/static/thumbnails/pump/128.png", {}, 200}));

TEST(TokenRefusal, TellsHowTheProductionEnvironmentWantsIt)
{
    const TestServer server;
    const auto reply = Fetch(server.Port(), kProduction);
    EXPECT_EQ(reply.body,
        R"({"code":"UNAUTHORIZED","message":"This address needs a token in the Authorization header. )"
        R"(Sign in first.","data":null})");
    EXPECT_EQ(reply.Header("WWW-Authenticate"), "Token realm=\"nuq-cloud\"");
}

TEST(TokenRefusal, TellsHowTheQaEnvironmentWantsItAndThatTheTokenWasWrong)
{
    const TestServer server;
    const auto reply = Fetch(server.Port(), kQa, {"Authorization: bearer old"});
    EXPECT_EQ(
        reply.body, R"({"code":"UNAUTHORIZED","message":"The token is not valid here. Sign in again.","data":null})");
    EXPECT_EQ(reply.Header("WWW-Authenticate"), "Bearer realm=\"nuq-cloud qa\"");
}

TEST(TokenSettings, TakeThePlaceOfTheDemoTokens)
{
    nuqcloud::ServerSettings settings;
    settings.tokens = {"other", "another"};
    const TestServer server(settings);
    EXPECT_EQ(Fetch(server.Port(), kProduction, {"Authorization: other"}).Status(), 200);
    EXPECT_EQ(Fetch(server.Port(), kProduction, {"Authorization: demo-token"}).Status(), 401);
    EXPECT_EQ(Fetch(server.Port(), kQa, {"Authorization: bearer another"}).Status(), 200);
}

} // namespace
} // namespace cloudtest
