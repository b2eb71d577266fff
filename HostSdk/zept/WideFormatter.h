#pragma once

#include <cstdarg>
#include <cstdint>
#include <string>

namespace zept {

struct FormatDirective;

/// Writes one format text with its arguments; what StringUtil::FormatWString() does. Used once.
class WideFormatter
{
public:
    /// Copies the list, so that the caller may end its own at once.
    explicit WideFormatter(va_list arguments);
    ~WideFormatter();
    WideFormatter(const WideFormatter&) = delete;
    WideFormatter& operator=(const WideFormatter&) = delete;

    /// The formatted text; empty for a null format.
    std::wstring Format(const wchar_t* format);

private:
    void Write(FormatDirective directive);
    void TakeStars(FormatDirective& directive);
    void WriteValue(const FormatDirective& directive);
    void WriteFloat(const FormatDirective& directive);
    void WriteText(const FormatDirective& directive);
    void WriteNarrowText(const FormatDirective& directive);
    void WriteCharacter(const FormatDirective& directive);
    void WritePointer(const FormatDirective& directive);
    void WritePadded(const std::wstring& text, const FormatDirective& directive);
    std::intmax_t TakeSigned(const std::string& length);
    std::uintmax_t TakeUnsigned(const std::string& length);

    va_list m_arguments;
    std::wstring m_result;
};

} // namespace zept
