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

} // namespace

std::wstring IdText(const QJsonValue& value)
{
    if (!value.isDouble()) {
        return value.toString().toStdWString();
    }
    const double number = value.toDouble();
    if (IsExactInteger(number)) {
        return DecimalText(static_cast<std::int64_t>(number));
    }
    return QString::number(number, 'f', 0).toStdWString();
}

} // namespace tarnnuq
