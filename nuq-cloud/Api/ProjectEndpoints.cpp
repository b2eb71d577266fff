#include "Api/ProjectEndpoints.h"

#include "Api/ApiError.h"
#include "Api/ComponentPages.h"
#include "Api/Envelope.h"
#include "Api/Limits.h"
#include "Api/RecordJson.h"

#include <algorithm>
#include <utility>

namespace nuqcloud {
namespace {

/// "1,2,3" without empty entries.
std::vector<std::string> ReadIds(const ApiRequest& request)
{
    const std::string text = request.query.Text("ids", kMostIds * (kLongestId + 1));
    std::vector<std::string> ids;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        if (end > begin) {
            ids.push_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    if (ids.empty() || ids.size() > kMostIds) {
        throw InvalidParameter("ids", text, "1 to " + std::to_string(kMostIds) + " ids with commas between them");
    }
    return ids;
}

} // namespace

void ProjectEndpoints::AddTo(Router& router)
{
    const std::string components = "/v1/projects/{projectId}/components";
    const std::string component = components + "/{id}";
    router.Add("/v1/projects", [this](const ApiRequest& request) { return Projects(request); });
    router.Add(components, [this](const ApiRequest& request) { return Page(request); });
    router.Add(components + "/list", [this](const ApiRequest& request) { return List(request); });
    router.Add(components + "/existence", [this](const ApiRequest& request) { return Existence(request); });
    router.Add(component, [this](const ApiRequest& request) { return Component(request); });
    router.Add(component + "/detail", [this](const ApiRequest& request) { return Detail(request); });
    router.Add(component + "/specifications", [this](const ApiRequest& request) { return AllSpecifications(request); });
    router.Add(component + "/specifications/{familyTypeName}",
        [this](const ApiRequest& request) { return OneSpecification(request); });
}

std::shared_ptr<const Positions> ProjectEndpoints::FindProject(const std::string& projectId) const
{
    if (auto positions = m_catalogue.ProjectPositions(projectId)) {
        return positions;
    }
    throw NotFound("project", projectId);
}

ComponentRecord ProjectEndpoints::Find(const ApiRequest& request) const
{
    FindProject(request.path[0]);
    if (auto component = m_catalogue.Connection()->ProjectComponentById(request.path[0], request.path[1])) {
        return *component;
    }
    throw NotFound("component of project \"" + request.path[0] + "\" with the id", request.path[1]);
}

/// The project's own record with what the catalogue's component adds to it.
ComponentDetailRecord ProjectEndpoints::FindDetail(const ApiRequest& request) const
{
    ComponentRecord own = Find(request);
    auto detail = m_catalogue.Connection()->ComponentById(own.publicId);
    if (!detail) {
        throw NotFound("component", own.publicId);
    }
    detail->component = std::move(own);
    return *detail;
}

HttpReply ProjectEndpoints::Projects(const ApiRequest& request) const
{
    const RecordJson json(m_catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginArray();
    for (const ProjectRecord& project : m_catalogue.Projects()) {
        json.Project(out, project);
    }
    out.EndArray();
    return SuccessReply(out.Take());
}

HttpReply ProjectEndpoints::Page(const ApiRequest& request) const
{
    return SuccessReply(ProjectPage(request, m_catalogue, request.path[0], *FindProject(request.path[0])));
}

HttpReply ProjectEndpoints::List(const ApiRequest& request) const
{
    FindProject(request.path[0]);
    const auto ids = ReadIds(request);
    const auto connection = m_catalogue.Connection();
    const RecordJson json(m_catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginArray();
    for (const std::string& id : ids) {
        if (const auto component = connection->ProjectComponentById(request.path[0], id)) {
            json.Component(out, *component);
        }
    }
    out.EndArray();
    return SuccessReply(out.Take());
}

HttpReply ProjectEndpoints::Existence(const ApiRequest& request) const
{
    FindProject(request.path[0]);
    const std::string publicId = request.query.Text("public_component_id", kLongestId);
    if (publicId.empty()) {
        throw InvalidParameter("public_component_id", publicId, "the id of a component of the catalogue");
    }
    const auto component = m_catalogue.Connection()->ProjectComponentByPublicId(request.path[0], publicId);
    JsonWriter out;
    out.BeginObject().Key("exist").Boolean(component.has_value());
    out.Key("version").Integer(component ? component->version : 0).EndObject();
    return SuccessReply(out.Take());
}

HttpReply ProjectEndpoints::Component(const ApiRequest& request) const
{
    JsonWriter out;
    RecordJson(m_catalogue.Categories(), request.language, request.tweaks).Component(out, Find(request));
    return SuccessReply(out.Take());
}

HttpReply ProjectEndpoints::Detail(const ApiRequest& request) const
{
    const ComponentDetailRecord detail = FindDetail(request);
    JsonWriter out;
    RecordJson(m_catalogue.Categories(), request.language, request.tweaks)
        .Detail(out, detail, Specifications::FamilyTypeNames(detail));
    return SuccessReply(out.Take());
}

HttpReply ProjectEndpoints::AllSpecifications(const ApiRequest& request) const
{
    return SuccessReply(m_specifications.All(FindDetail(request), request.language));
}

HttpReply ProjectEndpoints::OneSpecification(const ApiRequest& request) const
{
    return SuccessReply(m_specifications.One(FindDetail(request), request.path[2], request.language));
}

} // namespace nuqcloud
