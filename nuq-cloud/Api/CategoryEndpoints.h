#pragma once

#include "Api/ApiRequest.h"
#include "Api/Router.h"
#include "Catalogue/Catalogue.h"

#include <array>
#include <memory>
#include <mutex>

namespace nuqcloud {

/// Categories with counts, their property templates, their placeholder drawings and the editor's mapping.
class CategoryEndpoints
{
public:
    explicit CategoryEndpoints(const Catalogue& catalogue) : m_catalogue(catalogue) {}

    /// The endpoints refer to this object, which therefore outlives the router.
    void AddTo(Router& router);

private:
    HttpReply Categories(const ApiRequest& request) const;
    HttpReply Placeholders(const ApiRequest& request) const;
    HttpReply Mappings(const ApiRequest& request) const;
    HttpReply Properties(const ApiRequest& request) const;

    std::string CategoryList(const ApiRequest& request, const std::string& major, const Positions* matches) const;
    std::shared_ptr<const PreparedBody> PreparedList(const ApiRequest& request, const std::string& major) const;

    const Catalogue& m_catalogue;
    mutable std::mutex m_mutex;
    /// By language and major: the list without keyword is what every client asks first, and it never changes.
    mutable std::array<std::array<std::shared_ptr<const PreparedBody>, 4>, 2> m_prepared;
};

} // namespace nuqcloud
