#include "Api/ComponentPages.h"

#include "Api/ApiError.h"
#include "Api/Limits.h"
#include "Api/RecordJson.h"
#include "Catalogue/Keyword.h"

#include <algorithm>

namespace nuqcloud {
namespace {

std::string PageText(const ApiRequest& request, const Catalogue& catalogue, std::int64_t total,
    const std::vector<ComponentRecord>& components)
{
    const RecordJson json(catalogue.Categories(), request.language, request.tweaks);
    JsonWriter out;
    out.BeginObject().Key("totalCount").Integer(total + request.tweaks.countError).Key("list").BeginArray();
    for (const ComponentRecord& component : components) {
        json.Component(out, component);
    }
    out.EndArray().EndObject();
    return out.Take();
}

/// Of a changed catalogue the first component is gone, so that every later one moves up by one.
PositionRange Visible(const ApiRequest& request, PositionRange range)
{
    if (request.tweaks.catalogueChanged && range.count > 0) {
        ++range.first;
        --range.count;
    }
    return range;
}

std::vector<ComponentRecord> Consecutive(
    const Catalogue& catalogue, const PositionRange& range, const PageRequest& page)
{
    const std::int64_t first = range.first + std::min(page.Offset(), range.count);
    const std::int64_t last = std::min(first + page.size, range.End()) - 1;
    return first > last ? std::vector<ComponentRecord>() : catalogue.Connection()->ComponentsBetween(first, last);
}

template <typename Read>
std::vector<ComponentRecord> ReadEach(const Positions& positions, Read read)
{
    std::vector<ComponentRecord> components;
    components.reserve(positions.size());
    for (const std::uint32_t position : positions) {
        if (auto component = read(position)) {
            components.push_back(std::move(*component));
        }
    }
    return components;
}

} // namespace

ComponentFilter ReadComponentFilter(const ApiRequest& request, const Catalogue& catalogue)
{
    ComponentFilter filter{catalogue.Everything(), KeywordWords(request.query.Text("keyword", kLongestKeyword))};
    const std::string code = request.query.Text("category_code", kLongestId);
    if (!code.empty()) {
        const Category* const category = catalogue.Categories().FindByCode(code);
        if (category == nullptr) {
            throw NotFound("category with the code", code);
        }
        filter.range = category->components;
    }
    return filter;
}

std::string CataloguePage(const ApiRequest& request, const Catalogue& catalogue)
{
    const PageRequest page = request.query.Page();
    const ComponentFilter filter = ReadComponentFilter(request, catalogue);
    const PositionRange range = Visible(request, filter.range);
    if (filter.words.empty()) {
        return PageText(request, catalogue, range.count, Consecutive(catalogue, range, page));
    }
    const auto matches = catalogue.Search(filter.words);
    const auto connection = catalogue.Connection();
    const auto components = ReadEach(SliceIn(*matches, range, page.Offset(), page.size),
        [&](std::uint32_t position) { return connection->ComponentAt(position); });
    return PageText(request, catalogue, CountIn(*matches, range), components);
}

std::string ProjectPage(
    const ApiRequest& request, const Catalogue& catalogue, const std::string& projectId, const Positions& positions)
{
    const PageRequest page = request.query.Page();
    const ComponentFilter filter = ReadComponentFilter(request, catalogue);
    const PositionRange range = Visible(request, filter.range);
    const Positions matches =
        filter.words.empty() ? Positions() : Intersection(positions, *catalogue.Search(filter.words));
    const Positions& chosen = filter.words.empty() ? positions : matches;
    const auto connection = catalogue.Connection();
    const auto components = ReadEach(SliceIn(chosen, range, page.Offset(), page.size),
        [&](std::uint32_t position) { return connection->ProjectComponentAt(projectId, position); });
    return PageText(request, catalogue, CountIn(chosen, range), components);
}

} // namespace nuqcloud
