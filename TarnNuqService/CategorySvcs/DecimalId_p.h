#pragma once

#include <optional>
#include <string>

namespace tarnnuq {

/// The number whose plain decimal text is exactly the given one: "7" is 7, while "07", "+7", " 7" and "-0" are none.
std::optional<int> ParseDecimalId(const std::wstring& text);

} // namespace tarnnuq
