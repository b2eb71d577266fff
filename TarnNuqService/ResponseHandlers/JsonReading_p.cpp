#include "ResponseHandlers/JsonReading_p.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace tarnnuq {

namespace {

// Below this bound a double holds every whole number exactly, so that its integer text is its fixed-point text.
constexpr double ExactIntegerBound = 9007199254740992.0;

bool IsExactInteger(double number)
{
    return std::fabs(number) < ExactIntegerBound && number == std::trunc(number) &&
           !(number == 0.0 && std::signbit(number));
}

std::wstring DecimalText(std::int64_t number)
{
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return std::wstring(digits, end);
}

// Without a surrogate each UTF-16 unit is one character. A loop without an early exit, so that it is vectorized.
bool HasSurrogates(const ushort* text, int size)
{
    unsigned found = 0;
    for (int i = 0; i < size; ++i) {
        found |= static_cast<unsigned>((text[i] & 0xF800U) == 0xD800U);
    }
    return found != 0;
}

} // namespace

std::wstring WideText(const QString& text)
{
    const ushort* utf16 = text.utf16();
    if constexpr (sizeof(wchar_t) != sizeof(ushort)) {
        if (HasSurrogates(utf16, text.size())) {
            return text.toStdWString();
        }
    }
    return std::wstring(utf16, utf16 + text.size());
}

std::wstring IdText(const QJsonValue& value)
{
    if (!value.isDouble()) {
        return WideText(value.toString());
    }
    const double number = value.toDouble();
    if (IsExactInteger(number)) {
        return DecimalText(static_cast<std::int64_t>(number));
    }
    return WideText(QString::number(number, 'f', 0));
}

} // namespace tarnnuq
