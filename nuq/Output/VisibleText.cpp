#include "Output/VisibleText.h"

#include "Output/Utf8.h"

#include <QString>

namespace nuq {
namespace {

bool IsControl(char32_t codePoint)
{
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F);
}

/// Marks, embeddings, overrides and isolates of the bidirectional algorithm, line separators and the byte order mark.
bool IsInvisibleFormat(char32_t codePoint)
{
    return codePoint == 0x061C || codePoint == 0x200E || codePoint == 0x200F ||
           (codePoint >= 0x2028 && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069) ||
           codePoint == 0xFEFF;
}

void AppendHex(std::string& text, char32_t value, int digits)
{
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        text += "0123456789abcdef"[(value >> shift) & 0xF];
}

void AppendControl(std::string& text, char32_t codePoint)
{
    switch (codePoint) {
    case U'\n':
        text += "\\n";
        return;
    case U'\r':
        text += "\\r";
        return;
    case U'\t':
        text += "\\t";
        return;
    default:
        text += "\\x";
        AppendHex(text, codePoint, 2);
    }
}

} // namespace

std::string VisibleText(std::wstring_view text)
{
    std::string visible;
    visible.reserve(text.size() * 3);
    for (std::size_t at = 0; at < text.size();) {
        const char32_t codePoint = NextCodePoint(text, at);
        if (IsControl(codePoint)) {
            AppendControl(visible, codePoint);
        } else if (IsInvisibleFormat(codePoint)) {
            visible += "\\u";
            AppendHex(visible, codePoint, 4);
        } else {
            AppendUtf8(visible, codePoint);
        }
    }
    return visible;
}

std::string VisibleText(const QString& text)
{
    return VisibleText(std::wstring_view(text.toStdWString()));
}

} // namespace nuq
