#pragma once

#include <ostream>
#include <vector>

namespace testsupport {

/// A JSON number as it stands in a reply, and the 32-bit whole number that it is read as.
struct NumberRow
{
    const char* name;
    const char* json;
    int value;
};

inline void PrintTo(const NumberRow& row, std::ostream* stream)
{
    *stream << row.json;
}

/// Numbers at every limit: what is not whole or does not fit is 0.
inline std::vector<NumberRow> NumberRows()
{
    return {{"Zero", "0", 0}, {"NegativeZero", "-0", 0}, {"One", "1", 1}, {"MinusOne", "-1", -1},
        {"Largest", "2147483647", 2147483647}, {"Smallest", "-2147483648", -2147483647 - 1},
        {"OneTooLarge", "2147483648", 0}, {"OneTooSmall", "-2147483649", 0}, {"WholeWithFraction", "7.0", 7},
        {"WholeWithExponent", "1.2e3", 1200}, {"Fraction", "1.5", 0}, {"AlmostWhole", "0.99999999999999989", 0},
        {"Beyond32Bits", "4294967297", 0}, {"Largest64Bit", "9223372036854775807", 0},
        {"Beyond64Bits", "18446744073709551617", 0}, {"LargestDouble", "1.7976931348623157e308", 0},
        {"Tiny", "1e-300", 0}};
}

} // namespace testsupport
