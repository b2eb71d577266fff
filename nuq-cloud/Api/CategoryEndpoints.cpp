#include "Api/CategoryEndpoints.h"

#include "Api/ApiError.h"
#include "Api/Envelope.h"
#include "Api/Limits.h"
#include "Api/RecordJson.h"
#include "Catalogue/Keyword.h"
#include "Http/Gzip.h"

#include <algorithm>

namespace nuqcloud {
namespace {

constexpr int kAllViews = -1;
constexpr int kLastView = 2;

/// Known, but not looked at: one catalogue serves all versions.
void CheckSoftwareVersion(const ApiRequest& request)
{
    request.query.Text("software_version", kLongestVersion);
}

bool IsOfMajor(const Category& category, const std::string& major)
{
    return major.empty() || std::to_string(category.major) == major;
}

} // namespace

void CategoryEndpoints::AddTo(Router& router)
{
    router.Add("/v3/categories", [this](const ApiRequest& request) { return Categories(request); });
    router.Add("/v1/metadata/placeholders", [this](const ApiRequest& request) { return Placeholders(request); });
    router.Add("/v1/hox_design/category/mappings", [this](const ApiRequest& request) { return Mappings(request); });
    router.Add("/v1/categories/{code}/properties", [this](const ApiRequest& request) { return Properties(request); });
}

HttpReply CategoryEndpoints::Categories(const ApiRequest& request) const
{
    CheckSoftwareVersion(request);
    request.query.Choice("component_type", {"system"});
    const std::string major = request.query.Choice("major", {"0", "1", "2"});
    const auto words = KeywordWords(request.query.Text("keyword", kLongestKeyword));
    HttpReply reply;
    if (words.empty() && !request.tweaks.Any()) {
        reply.prepared = PreparedList(request, major);
        return reply;
    }
    const auto matches = words.empty() ? nullptr : m_catalogue.Search(words);
    reply.body = CategoryList(request, major, matches.get());
    return reply;
}

std::string CategoryEndpoints::CategoryList(
    const ApiRequest& request, const std::string& major, const Positions* matches) const
{
    const RecordJson json(m_catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginArray();
    for (const Category& category : m_catalogue.Categories().All()) {
        if (IsOfMajor(category, major)) {
            const PositionRange& range = category.components;
            json.Category(out, category, matches == nullptr ? range.count : CountIn(*matches, range));
        }
    }
    out.EndArray();
    return SuccessText(out.Take());
}

std::shared_ptr<const PreparedBody> CategoryEndpoints::PreparedList(
    const ApiRequest& request, const std::string& major) const
{
    const std::size_t language = request.language == Language::Chinese ? 1 : 0;
    const std::size_t column = major.empty() ? 3 : static_cast<std::size_t>(major.front() - '0');
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::shared_ptr<const PreparedBody>& prepared = m_prepared[language][column];
    if (!prepared) {
        PreparedBody body;
        body.plain = CategoryList(request, major, nullptr);
        body.gzip = GzipCompress(body.plain);
        prepared = std::make_shared<const PreparedBody>(std::move(body));
    }
    return prepared;
}

HttpReply CategoryEndpoints::Placeholders(const ApiRequest& request) const
{
    CheckSoftwareVersion(request);
    const PageRequest page = request.query.Page();
    const auto view = static_cast<int>(request.query.Integer("type", kAllViews, kLastView, kAllViews));
    const std::string code = request.query.Text("category_code", kLongestId);
    if (code.empty()) {
        throw InvalidParameter("category_code", code, "the code of a category");
    }
    if (m_catalogue.Categories().FindByCode(code) == nullptr) {
        throw NotFound("category with the code", code);
    }
    const auto connection = m_catalogue.Connection();
    const RecordJson json(m_catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginObject().Key("totalCount").Integer(connection->LegendCount(code, view) + request.tweaks.countError);
    out.Key("list").BeginArray();
    for (const LegendRecord& legend : connection->Legends(code, view, page.Offset(), page.size)) {
        json.Legend(out, legend);
    }
    out.EndArray().EndObject();
    return SuccessReply(out.Take());
}

HttpReply CategoryEndpoints::Mappings(const ApiRequest& request) const
{
    CheckSoftwareVersion(request);
    const RecordJson json(m_catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginArray();
    for (const MappingRecord& mapping : m_catalogue.Connection()->Mappings()) {
        json.Mapping(out, mapping);
    }
    out.EndArray();
    return SuccessReply(out.Take());
}

HttpReply CategoryEndpoints::Properties(const ApiRequest& request) const
{
    const std::string& code = request.path.front();
    const Category* const category = m_catalogue.Categories().FindByCode(code);
    if (category == nullptr) {
        throw NotFound("category with the code", code);
    }
    const BilingualText definitions =
        m_catalogue.Connection()->PropertyTemplate(code).value_or(BilingualText{"[]", "[]"});
    const std::string& name = request.language == Language::Chinese ? category->nameZh : category->nameEn;
    JsonWriter out;
    out.BeginObject().Key("categoryId").Integer(category->id).Key("categoryName").Text(name);
    out.Key("propertyList").Raw(In(request.language, definitions)).EndObject();
    return SuccessReply(out.Take());
}

} // namespace nuqcloud
