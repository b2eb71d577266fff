#include "CategorySvcs/DecimalId_p.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tarnnuq {

namespace {

constexpr std::size_t LongestIdText = std::numeric_limits<std::int32_t>::digits10 + 2; // one more digit and a sign

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

} // namespace

std::optional<int> ParseDecimalId(const std::wstring& text)
{
    const bool negative = !text.empty() && text.front() == L'-';
    const auto digits = text.begin() + (negative ? 1 : 0);
    if (digits == text.end() || text.size() > LongestIdText || !std::all_of(digits, text.end(), IsDigit)) {
        return std::nullopt;
    }
    const bool leadingZero = *digits == L'0' && (negative || text.size() > 1);
    if (leadingZero) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    for (auto digit = digits; digit != text.end(); ++digit) {
        number = 10 * number + (*digit - L'0');
    }
    number = negative ? -number : number;
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<int>(number);
}

} // namespace tarnnuq
