#pragma once

#include "Api/CategoryEndpoints.h"
#include "Api/ComponentEndpoints.h"
#include "Api/ProjectEndpoints.h"
#include "Api/Router.h"
#include "Api/Specifications.h"
#include "Api/Tokens.h"
#include "Catalogue/Catalogue.h"
#include "Http/HttpReply.h"
#include "Http/HttpRequest.h"
#include "Http/RequestTarget.h"
#include "Server/StaticFiles.h"

#include <string>
#include <vector>

namespace nuqcloud {

/// Answers requests from a library: the API and the static files, each below "/" and below "/qa".
/// Safe for many threads.
class CloudService
{
public:
    /// @throws LibraryError
    CloudService(const LibraryFolder& library, Tokens tokens);

    CloudService(const CloudService&) = delete;
    CloudService& operator=(const CloudService&) = delete;

    /// The reply to a request; what goes wrong becomes a reply too.
    HttpReply Answer(const HttpRequest& request, Tweaks tweaks) const;

    /// Patterns of all API paths below the API's base address.
    std::vector<std::string> Patterns() const { return m_router.Patterns(); }

private:
    HttpReply Dispatch(const HttpRequest& request, Tweaks tweaks) const;
    HttpReply AnswerApi(const HttpRequest& request, Environment environment, RequestTarget target, Tweaks tweaks) const;

    const Catalogue m_catalogue;
    const Specifications m_specifications;
    CategoryEndpoints m_categoryEndpoints;
    ComponentEndpoints m_componentEndpoints;
    ProjectEndpoints m_projectEndpoints;
    const StaticFiles m_staticFiles;
    const Tokens m_tokens;
    Router m_router;
};

} // namespace nuqcloud
