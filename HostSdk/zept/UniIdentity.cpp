#include "zept/UniIdentity.h"

#include <string_view>
#include <utility>

namespace zept {

namespace {

constexpr std::wstring_view GuidShape = L"xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

std::wstring_view WithoutBraces(std::wstring_view text)
{
    const bool braced = text.size() >= 2 && text.front() == L'{' && text.back() == L'}';
    return braced ? text.substr(1, text.size() - 2) : text;
}

wchar_t AsciiLower(wchar_t letter)
{
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter - L'A' + L'a') : letter;
}

bool IsHexDigit(wchar_t lowerCase)
{
    return (lowerCase >= L'0' && lowerCase <= L'9') || (lowerCase >= L'a' && lowerCase <= L'f');
}

bool HasGuidShape(std::wstring_view lowerCase)
{
    if (lowerCase.size() != GuidShape.size()) {
        return false;
    }
    for (std::size_t i = 0; i < lowerCase.size(); ++i) {
        const bool fits = GuidShape[i] == L'-' ? lowerCase[i] == L'-' : IsHexDigit(lowerCase[i]);
        if (!fits) {
            return false;
        }
    }
    return true;
}

std::wstring KeyOf(const std::wstring& text)
{
    std::wstring bare(WithoutBraces(text));
    for (wchar_t& letter : bare) {
        letter = AsciiLower(letter);
    }
    return HasGuidShape(bare) ? bare : text;
}

} // namespace

UniIdentity::UniIdentity(std::wstring guidText) : m_text(std::move(guidText)), m_key(KeyOf(m_text)) {}

std::wstring UniIdentity::GetGuidString() const
{
    return m_text;
}

bool UniIdentity::operator==(const UniIdentity& other) const
{
    return m_key == other.m_key;
}

bool UniIdentity::operator!=(const UniIdentity& other) const
{
    return !(*this == other);
}

bool UniIdentity::operator<(const UniIdentity& other) const
{
    return m_key < other.m_key;
}

} // namespace zept
