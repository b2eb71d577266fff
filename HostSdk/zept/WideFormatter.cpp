#include "zept/WideFormatter.h"

#include "zept/DecimalPoint.h"
#include "zept/FormatDirective.h"
#include "zept/StringUtil.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <limits>
#include <type_traits>

namespace zept {

namespace {

/// Prints by the C library, which knows all about numbers; only its wide functions differ between platforms.
template <typename Value>
std::string Print(const std::string& conversion, const FormatDirective& directive, Value value)
{
    const std::string format = "%" + directive.flags + "*.*" + conversion;
    const int width = directive.width.value_or(0);
    const int precision = directive.precision.value_or(-1);
    const int length = std::snprintf(nullptr, 0, format.c_str(), width, precision, value);
    if (length < 0) {
        return {};
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format.c_str(), width, precision, value);
    text.pop_back();
    return text;
}

std::wstring Widen(const std::string& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

/// The text's beginning; never looks behind what the precision allows, so the text need not end there.
template <typename Character>
std::basic_string<Character> Cut(const Character* text, const FormatDirective& directive)
{
    std::size_t length = 0;
    while (length != static_cast<std::size_t>(directive.precision.value_or(-1)) && text[length] != Character()) {
        ++length;
    }
    return std::basic_string<Character>(text, length);
}

bool IsOneOf(const char* letters, char letter)
{
    return std::strchr(letters, letter) != nullptr;
}

bool HasFlag(const FormatDirective& directive, char flag)
{
    return directive.flags.find(flag) != std::string::npos;
}

} // namespace

WideFormatter::WideFormatter(va_list arguments)
{
    va_copy(m_arguments, arguments);
}

WideFormatter::~WideFormatter()
{
    va_end(m_arguments);
}

std::wstring WideFormatter::Format(const wchar_t* format)
{
    while (format != nullptr && *format != L'\0') {
        const wchar_t* const percent = std::wcschr(format, L'%');
        if (percent == nullptr) {
            m_result += format;
            break;
        }
        m_result.append(format, percent);
        const auto directive = FormatDirective::Parse(percent);
        if (directive) {
            Write(*directive);
        } else {
            m_result += L'%';
        }
        format = percent + (directive ? directive->size : 1);
    }
    return m_result;
}

void WideFormatter::Write(FormatDirective directive)
{
    TakeStars(directive);
    WriteValue(directive);
}

void WideFormatter::TakeStars(FormatDirective& directive)
{
    if (directive.widthIsArgument) {
        const int width = va_arg(m_arguments, int);
        if (width < 0) {
            directive.flags += '-';
        }
        directive.width = width < 0 ? -std::max(width, -std::numeric_limits<int>::max()) : width;
    }
    if (directive.precisionIsArgument) {
        const int precision = va_arg(m_arguments, int);
        directive.precision = precision < 0 ? std::nullopt : std::optional(precision);
    }
}

void WideFormatter::WriteValue(const FormatDirective& directive)
{
    const char letter = directive.letter;
    if (IsOneOf("di", letter)) {
        m_result += Widen(Print("jd", directive, TakeSigned(directive.length)));
    } else if (IsOneOf("uxXo", letter)) {
        m_result += Widen(Print(std::string("j") + letter, directive, TakeUnsigned(directive.length)));
    } else if (IsOneOf("sS", letter)) {
        WriteText(directive);
    } else if (IsOneOf("cC", letter)) {
        WriteCharacter(directive);
    } else if (letter == 'p') {
        WritePointer(directive);
    } else if (letter == '%') {
        m_result += L'%';
    } else {
        WriteFloat(directive);
    }
}

void WideFormatter::WriteFloat(const FormatDirective& directive)
{
    const std::string number =
        directive.length == "L"
            ? Print(std::string("L") + directive.letter, directive, va_arg(m_arguments, long double))
            : Print(std::string(1, directive.letter), directive, va_arg(m_arguments, double));
    m_result += Widen(WithPlainDecimalPoint(number));
}

void WideFormatter::WriteText(const FormatDirective& directive)
{
    if (directive.length == "h") {
        WriteNarrowText(directive);
        return;
    }
    const wchar_t* const text = va_arg(m_arguments, const wchar_t*);
    WritePadded(Cut(text != nullptr ? text : L"(null)", directive), directive);
}

void WideFormatter::WriteNarrowText(const FormatDirective& directive)
{
    const char* const text = va_arg(m_arguments, const char*);
    WritePadded(StringUtil::ToWString(Cut(text != nullptr ? text : "(null)", directive)), directive);
}

void WideFormatter::WriteCharacter(const FormatDirective& directive)
{
    // wchar_t travels as int: it either is one or is promoted to it.
    const auto character = static_cast<wchar_t>(va_arg(m_arguments, int));
    WritePadded(std::wstring(1, character), directive);
}

void WideFormatter::WritePointer(const FormatDirective& directive)
{
    FormatDirective plain;
    const std::string text = Print("jx", plain, reinterpret_cast<std::uintptr_t>(va_arg(m_arguments, const void*)));
    WritePadded(L"0x" + Widen(text), directive);
}

void WideFormatter::WritePadded(const std::wstring& text, const FormatDirective& directive)
{
    const auto width = static_cast<std::size_t>(directive.width.value_or(0));
    const std::wstring padding(width > text.size() ? width - text.size() : 0, L' ');
    m_result += HasFlag(directive, '-') ? text + padding : padding + text;
}

std::intmax_t WideFormatter::TakeSigned(const std::string& length)
{
    if (length == "ll") {
        return va_arg(m_arguments, long long);
    }
    if (length == "l") {
        return va_arg(m_arguments, long);
    }
    if (length == "j") {
        return va_arg(m_arguments, std::intmax_t);
    }
    if (length == "z") {
        return va_arg(m_arguments, std::make_signed_t<std::size_t>);
    }
    if (length == "t") {
        return va_arg(m_arguments, std::ptrdiff_t);
    }
    const int value = va_arg(m_arguments, int);
    if (length == "hh") {
        return static_cast<signed char>(value);
    }
    return length == "h" ? static_cast<short>(value) : value;
}

std::uintmax_t WideFormatter::TakeUnsigned(const std::string& length)
{
    if (length == "ll") {
        return va_arg(m_arguments, unsigned long long);
    }
    if (length == "l") {
        return va_arg(m_arguments, unsigned long);
    }
    if (length == "j") {
        return va_arg(m_arguments, std::uintmax_t);
    }
    if (length == "z") {
        return va_arg(m_arguments, std::size_t);
    }
    if (length == "t") {
        return va_arg(m_arguments, std::make_unsigned_t<std::ptrdiff_t>);
    }
    const unsigned int value = va_arg(m_arguments, unsigned int);
    if (length == "hh") {
        return static_cast<unsigned char>(value);
    }
    return length == "h" ? static_cast<unsigned short>(value) : value;
}

} // namespace zept
