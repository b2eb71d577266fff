#include "zept/DecimalPoint.h"

#include <algorithm>

namespace zept {

namespace {

/// All that such a number can hold besides its point: digits, signs, padding, exponent letters, "inf" and "nan".
bool IsPoint(char letter)
{
    const bool isLetter = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    const bool isDigit = letter >= '0' && letter <= '9';
    return !isLetter && !isDigit && letter != '+' && letter != '-' && letter != ' ';
}

} // namespace

std::string WithPlainDecimalPoint(const std::string& number)
{
    const auto begin = std::find_if(number.begin(), number.end(), IsPoint);
    const auto end = std::find_if_not(begin, number.end(), IsPoint);
    return begin == end ? number : std::string(number.begin(), begin) + '.' + std::string(end, number.end());
}

} // namespace zept
