#pragma once

#include "Api/Language.h"
#include "Api/QueryParameters.h"
#include "Api/Tweaks.h"

#include <string>
#include <vector>

namespace nuqcloud {

/// What an endpoint sees of a request: decoded, checked for form, authorized.
struct ApiRequest
{
    std::vector<std::string> path; ///< the parts that stand for the route's parameters, in order
    QueryParameters query{""};
    Language language = Language::English;
    Tweaks tweaks;
};

} // namespace nuqcloud
