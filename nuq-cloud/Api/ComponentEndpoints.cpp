#include "Api/ComponentEndpoints.h"

#include "Api/ApiError.h"
#include "Api/ComponentPages.h"
#include "Api/Envelope.h"
#include "Api/RecordJson.h"

namespace nuqcloud {

void ComponentEndpoints::AddTo(Router& router)
{
    router.Add("/v1/components", [this](const ApiRequest& request) { return Page(request); });
    router.Add("/v1/components/{id}", [this](const ApiRequest& request) { return Detail(request); });
    router.Add(
        "/v1/components/{id}/specifications", [this](const ApiRequest& request) { return AllSpecifications(request); });
    router.Add("/v1/components/{id}/specifications/{familyTypeName}",
        [this](const ApiRequest& request) { return OneSpecification(request); });
}

ComponentDetailRecord ComponentEndpoints::Find(const std::string& id) const
{
    if (auto detail = m_catalogue.Connection()->ComponentById(id)) {
        return *detail;
    }
    throw NotFound("component", id);
}

HttpReply ComponentEndpoints::Page(const ApiRequest& request) const
{
    return SuccessReply(CataloguePage(request, m_catalogue));
}

HttpReply ComponentEndpoints::Detail(const ApiRequest& request) const
{
    const ComponentDetailRecord detail = Find(request.path[0]);
    JsonWriter out;
    RecordJson(m_catalogue.Categories(), request.language, request.tweaks)
        .Detail(out, detail, Specifications::FamilyTypeNames(detail));
    return SuccessReply(out.Take());
}

HttpReply ComponentEndpoints::AllSpecifications(const ApiRequest& request) const
{
    return SuccessReply(m_specifications.All(Find(request.path[0]), request.language));
}

HttpReply ComponentEndpoints::OneSpecification(const ApiRequest& request) const
{
    return SuccessReply(m_specifications.One(Find(request.path[0]), request.path[1], request.language));
}

} // namespace nuqcloud
