#include "Output/JsonWriter.h"

#include "Output/Utf8.h"

#include <QString>

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <utility>

namespace nuq {
namespace {

bool NeedsEscape(char32_t codePoint)
{
    return codePoint < 0x20 || codePoint == U'"' || codePoint == U'\\' || (codePoint >= 0x7F && codePoint <= 0x9F);
}

void AppendHexEscape(std::string& buffer, char32_t codePoint)
{
    constexpr char digits[] = "0123456789abcdef";
    buffer += "\\u00";
    buffer += digits[(codePoint >> 4) & 0xF];
    buffer += digits[codePoint & 0xF];
}

template <class NumberType>
void AppendNumber(std::string& buffer, NumberType number)
{
    char digits[32];
    const auto result = std::to_chars(std::begin(digits), std::end(digits), number);
    buffer.append(digits, result.ptr);
}

} // namespace

void JsonWriter::BeforeValue()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_levels.empty())
        return;
    Level& level = m_levels.back();
    if (!level.isEmpty)
        m_buffer += ',';
    if (level.isList)
        m_buffer += '\n';
    level.isEmpty = false;
}

void JsonWriter::Open(char bracket, bool isList)
{
    BeforeValue();
    m_buffer += bracket;
    m_levels.emplace_back();
    m_levels.back().isList = isList;
}

void JsonWriter::Close(char bracket)
{
    assert(!m_levels.empty() && !m_afterKey);
    if (m_levels.back().isList && !m_levels.back().isEmpty)
        m_buffer += '\n';
    m_levels.pop_back();
    m_buffer += bracket;
}

void JsonWriter::BeginObject()
{
    Open('{', false);
}

void JsonWriter::EndObject()
{
    Close('}');
}

void JsonWriter::BeginArray(bool isList)
{
    Open('[', isList);
}

void JsonWriter::EndArray()
{
    Close(']');
}

void JsonWriter::CheckOrder([[maybe_unused]] std::string_view name)
{
#ifndef NDEBUG
    std::string& last = m_levels.back().lastKey;
    assert((m_levels.back().isEmpty || last < name) && "keys are written in ascending order");
    last = name;
#endif
}

void JsonWriter::Key(std::string_view name)
{
    CheckOrder(name);
    if (!m_levels.back().isEmpty)
        m_buffer += ',';
    m_levels.back().isEmpty = false;
    m_buffer += '"';
    m_buffer += name;
    m_buffer += "\":";
    m_afterKey = true;
}

void JsonWriter::Key(const std::wstring& name)
{
    CheckOrder(ToUtf8(name));
    if (!m_levels.back().isEmpty)
        m_buffer += ',';
    m_levels.back().isEmpty = false;
    m_afterKey = true;
    Text(std::wstring_view(name));
    m_buffer += ':';
    m_afterKey = true;
}

void JsonWriter::AppendEscaped(char32_t codePoint)
{
    if (codePoint == U'"' || codePoint == U'\\') {
        m_buffer += '\\';
        m_buffer += static_cast<char>(codePoint);
    } else if (codePoint == U'\n') {
        m_buffer += "\\n";
    } else {
        AppendHexEscape(m_buffer, codePoint);
    }
}

void JsonWriter::Text(std::wstring_view text)
{
    BeforeValue();
    m_buffer += '"';
    // Plain letters, nearly all of every text, go through a small array: a string's push_back costs several times more.
    std::array<char, 256> plain;
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto unit = static_cast<char32_t>(text[at]);
        if (unit < 0x7F && unit >= 0x20 && unit != U'"' && unit != U'\\') {
            plain[count++] = static_cast<char>(unit);
            ++at;
            if (count < plain.size())
                continue;
        }
        m_buffer.append(plain.data(), count);
        if (count < plain.size())
            AppendSpecial(NextCodePoint(text, at));
        count = 0;
    }
    m_buffer.append(plain.data(), count);
    m_buffer += '"';
}

void JsonWriter::AppendSpecial(char32_t codePoint)
{
    if (NeedsEscape(codePoint))
        AppendEscaped(codePoint);
    else
        AppendUtf8(m_buffer, codePoint);
}

void JsonWriter::Text(const QString& text)
{
    Text(std::wstring_view(text.toStdWString()));
}

void JsonWriter::Text(std::string_view text)
{
    Text(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
}

void JsonWriter::Number(std::int64_t number)
{
    BeforeValue();
    AppendNumber(m_buffer, number);
}

void JsonWriter::NumberAsText(std::int64_t number)
{
    BeforeValue();
    m_buffer += '"';
    AppendNumber(m_buffer, number);
    m_buffer += '"';
}

void JsonWriter::Number(double number)
{
    if (!std::isfinite(number))
        return Null();
    BeforeValue();
    AppendNumber(m_buffer, number);
}

void JsonWriter::Bool(bool value)
{
    BeforeValue();
    m_buffer += value ? "true" : "false";
}

void JsonWriter::Null()
{
    BeforeValue();
    m_buffer += "null";
}

std::string JsonWriter::Take()
{
    assert(m_levels.empty());
    m_buffer += '\n';
    return std::exchange(m_buffer, std::string());
}

void JsonWriter::Clear()
{
    m_buffer.clear();
}

} // namespace nuq
