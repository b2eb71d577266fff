#pragma once

#include "Api/ApiRequest.h"
#include "Catalogue/Catalogue.h"

#include <functional>
#include <string>

namespace nuqcloud {

/// Which components a page is cut from: a category's, and of these the ones that a keyword matches.
struct ComponentFilter
{
    PositionRange range;
    std::vector<std::string> words;
};

/// Reads "category_code" and "keyword".
/// @throws ApiError when there is no such category
ComponentFilter ReadComponentFilter(const ApiRequest& request, const Catalogue& catalogue);

/// {"totalCount":..,"list":[..]} of the whole catalogue's components.
std::string CataloguePage(const ApiRequest& request, const Catalogue& catalogue);

/// The same of one project's.
std::string ProjectPage(
    const ApiRequest& request, const Catalogue& catalogue, const std::string& projectId, const Positions& positions);

} // namespace nuqcloud
