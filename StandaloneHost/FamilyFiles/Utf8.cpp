#include "FamilyFiles/Utf8.h"

#include <QString>

namespace familyfiles {

namespace {

constexpr Utf8Character Invalid{U'\uFFFD', 1, false};

unsigned ByteAt(std::string_view text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

/// How many bytes a character with this first byte has; 0 when none begins so.
std::size_t SizeFromFirst(unsigned first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first < 0xE0) {
        return 2;
    }
    if (first >= 0xE0 && first < 0xF0) {
        return 3;
    }
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool IsScalar(char32_t code, std::size_t size)
{
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    return code >= least[size] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

} // namespace

Utf8Character Utf8At(std::string_view text, std::size_t position)
{
    const unsigned first = ByteAt(text, position);
    const std::size_t size = SizeFromFirst(first);
    if (size == 1) {
        return {first, 1, true};
    }
    if (size == 0 || size > text.size() - position) {
        return Invalid;
    }
    char32_t code = first & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        const unsigned next = ByteAt(text, position + i);
        if ((next & 0xC0U) != 0x80U) {
            return Invalid;
        }
        code = (code << 6U) | (next & 0x3FU);
    }
    return IsScalar(code, size) ? Utf8Character{code, size, true} : Invalid;
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();) {
        const Utf8Character character = Utf8At(text, position);
        if (!character.isValid) {
            return false;
        }
        position += character.size;
    }
    return true;
}

std::size_t CharactersBefore(std::string_view text, std::size_t position)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < position && at < text.size(); at += Utf8At(text, at).size) {
        ++count;
    }
    return count;
}

std::wstring WideText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size())).toStdWString();
}

std::string Utf8Text(const std::wstring& wide)
{
    return QString::fromStdWString(wide).toStdString();
}

} // namespace familyfiles
