#include "FamilyFiles/Manifest/FamilyManifest.h"

#include <algorithm>

namespace familyfiles {

std::optional<std::size_t> FamilyManifest::FindParameter(std::string_view parameterName) const
{
    const auto found = std::find_if(parameters.begin(), parameters.end(),
        [parameterName](const ParameterDefinition& parameter) { return parameter.name == parameterName; });
    return found != parameters.end() ? std::optional<std::size_t>(found - parameters.begin()) : std::nullopt;
}

} // namespace familyfiles
