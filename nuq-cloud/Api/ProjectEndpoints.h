#pragma once

#include "Api/Router.h"
#include "Api/Specifications.h"
#include "Catalogue/Catalogue.h"

namespace nuqcloud {

/// Projects and the components in their libraries.
class ProjectEndpoints
{
public:
    ProjectEndpoints(const Catalogue& catalogue, const Specifications& specifications)
        : m_catalogue(catalogue), m_specifications(specifications)
    {
    }

    /// The endpoints refer to this object, which therefore outlives the router.
    void AddTo(Router& router);

private:
    HttpReply Projects(const ApiRequest& request) const;
    HttpReply Page(const ApiRequest& request) const;
    HttpReply List(const ApiRequest& request) const;
    HttpReply Existence(const ApiRequest& request) const;
    HttpReply Component(const ApiRequest& request) const;
    HttpReply Detail(const ApiRequest& request) const;
    HttpReply AllSpecifications(const ApiRequest& request) const;
    HttpReply OneSpecification(const ApiRequest& request) const;

    std::shared_ptr<const Positions> FindProject(const std::string& projectId) const;
    ComponentRecord Find(const ApiRequest& request) const;
    ComponentDetailRecord FindDetail(const ApiRequest& request) const;

    const Catalogue& m_catalogue;
    const Specifications& m_specifications;
};

} // namespace nuqcloud
