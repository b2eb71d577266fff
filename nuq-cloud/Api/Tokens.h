#pragma once

#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"

#include <string>

namespace nuqcloud {

/// Which of the two deployments a request is meant for; they differ in their token and how it is sent.
enum class Environment
{
    Production,
    Qa
};

/// The tokens that the two deployments accept.
struct Tokens
{
    std::string production = "demo-token"; ///< sent as it is
    std::string qa = "demo-token-qa";      ///< sent behind "bearer "
};

/// True when the request carries exactly one Authorization header and it is the environment's.
bool IsAuthorized(const HttpRequest& request, Environment environment, const Tokens& tokens);

/// 401 with the challenge that tells a client how the environment wants its token.
HttpReply UnauthorizedReply(Environment environment, bool tokenWasSent);

} // namespace nuqcloud
