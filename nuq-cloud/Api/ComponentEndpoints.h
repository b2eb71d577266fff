#pragma once

#include "Api/Router.h"
#include "Api/Specifications.h"
#include "Catalogue/Catalogue.h"

namespace nuqcloud {

/// The public catalogue's components: pages, details, specifications.
class ComponentEndpoints
{
public:
    ComponentEndpoints(const Catalogue& catalogue, const Specifications& specifications)
        : m_catalogue(catalogue), m_specifications(specifications)
    {
    }

    /// The endpoints refer to this object, which therefore outlives the router.
    void AddTo(Router& router);

private:
    HttpReply Page(const ApiRequest& request) const;
    HttpReply Detail(const ApiRequest& request) const;
    HttpReply AllSpecifications(const ApiRequest& request) const;
    HttpReply OneSpecification(const ApiRequest& request) const;

    ComponentDetailRecord Find(const std::string& id) const;

    const Catalogue& m_catalogue;
    const Specifications& m_specifications;
};

} // namespace nuqcloud
