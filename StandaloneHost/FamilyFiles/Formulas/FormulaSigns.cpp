#include "FamilyFiles/Formulas/FormulaSigns.h"

namespace familyfiles {

namespace {

constexpr char32_t FullWidthFirst = 0xFF01;
constexpr char32_t FullWidthLast = 0xFF5E;
constexpr char32_t FullWidthShift = 0xFEE0;

bool IsPlainLetter(char32_t code)
{
    return (code >= U'A' && code <= U'Z') || (code >= U'a' && code <= U'z');
}

bool IsFullWidthLetter(char32_t code)
{
    return code >= FullWidthFirst && code <= FullWidthLast && IsPlainLetter(code - FullWidthShift);
}

/// Punctuation and invisible characters of the blocks that texts of the trade use.
bool IsForeignSign(char32_t code)
{
    return code < 0xA0 || (code >= 0x2000 && code <= 0x206F) || (code >= 0x2190 && code <= 0x23FF) ||
           (code >= 0x3000 && code <= 0x3020) || (code >= 0xE000 && code <= 0xF8FF) ||
           (code >= 0xFE00 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFFEF) || code >= 0xFFF0;
}

} // namespace

char32_t PlainSign(char32_t code)
{
    switch (code) {
    case U'×':
    case U'·':
    case U'∙':
    case U'⋅':
        return U'*';
    case U'÷':
    case U'∕':
        return U'/';
    case U'−':
    case U'–':
        return U'-';
    case U'≤':
    case U'≦':
        return U'≤';
    case U'≥':
    case U'≧':
        return U'≥';
    case U'“':
    case U'”':
        return U'"';
    case U'、':
        return U',';
    case U'【':
        return U'[';
    case U'】':
        return U']';
    default:
        return code >= FullWidthFirst && code <= FullWidthLast && !IsFullWidthLetter(code) ? code - FullWidthShift
                                                                                           : code;
    }
}

bool BeginsName(char32_t code)
{
    if (code < 0x80) {
        return IsPlainLetter(code) || code == U'_';
    }
    return PlainSign(code) == code && (IsFullWidthLetter(code) || !IsForeignSign(code));
}

bool ContinuesName(char32_t code)
{
    return BeginsName(code) || code == U'.' || IsDigit(code) || IsDigit(PlainSign(code));
}

bool IsBlank(char32_t code)
{
    return code == U' ' || code == U'\t' || code == U'\n' || code == U'\r' || code == 0xA0 || code == 0x3000 ||
           (code >= 0x2000 && code <= 0x200A);
}

bool IsDigit(char32_t code)
{
    return code >= U'0' && code <= U'9';
}

} // namespace familyfiles
