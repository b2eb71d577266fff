#pragma once

#include <string_view>

namespace familyfiles {

/// Whether an entry may be called so: relative, UTF-8, no "..", no backslash, colon or control character. Nothing is
/// unpacked under such names, but programs that do so would be led astray.
bool IsGoodEntryName(std::string_view name);

} // namespace familyfiles
