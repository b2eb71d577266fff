#pragma once

#include <string_view>

namespace familyfiles {

/// Whether brackets and braces outside of texts are nested deeper than @p limit. Looks at the bytes alone, so that it
/// can be asked before anything is built from them.
bool IsNestedDeeperThan(std::string_view json, int limit);

} // namespace familyfiles
