#include "Api/Tokens.h"

#include "Api/Envelope.h"

namespace nuqcloud {
namespace {

/// Takes the same time wherever the texts differ.
bool SameSecret(const std::string& left, const std::string& right)
{
    unsigned difference = left.size() == right.size() ? 0U : 1U;
    for (std::size_t i = 0; i < left.size(); ++i) {
        difference |= static_cast<unsigned>(left[i] ^ right[i % (right.size() + 1)]);
    }
    return difference == 0;
}

} // namespace

bool IsAuthorized(const HttpRequest& request, Environment environment, const Tokens& tokens)
{
    const std::string expected = environment == Environment::Qa ? "bearer " + tokens.qa : tokens.production;
    return request.authorization.size() == 1 && SameSecret(request.authorization.front(), expected);
}

HttpReply UnauthorizedReply(Environment environment, bool tokenWasSent)
{
    HttpReply reply = ErrorReply(401, "UNAUTHORIZED",
        tokenWasSent ? "The token is not valid here. Sign in again."
                     : "This address needs a token in the Authorization header. Sign in first.");
    reply.headers.emplace_back("WWW-Authenticate",
        environment == Environment::Qa ? "Bearer realm=\"nuq-cloud qa\"" : "Token realm=\"nuq-cloud\"");
    return reply;
}

} // namespace nuqcloud
