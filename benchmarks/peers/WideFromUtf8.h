#pragma once

#include <string>
#include <string_view>

namespace bench {

/// Well-formed UTF-8 to the wide text of this platform, for peers that hand out bytes.
std::wstring WideFromUtf8(std::string_view utf8);

} // namespace bench
