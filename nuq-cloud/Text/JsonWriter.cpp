#include "Text/JsonWriter.h"

#include <array>
#include <charconv>
#include <utility>

namespace nuqcloud {
namespace {

const char* ShortEscape(char c)
{
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return nullptr;
    }
}

void AppendControl(std::string& out, char c)
{
    static constexpr char kDigits[] = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    out += "\\u00";
    out.push_back(kDigits[byte >> 4U]);
    out.push_back(kDigits[byte & 0x0FU]);
}

void AppendEscaped(std::string& out, std::string_view text)
{
    for (const char c : text) {
        if (const char* escape = ShortEscape(c)) {
            out += escape;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            AppendControl(out, c);
        } else {
            out.push_back(c);
        }
    }
}

template <typename Value>
void AppendNumber(std::string& out, Value value)
{
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out.append(buffer.data(), result.ptr);
}

} // namespace

void JsonWriter::BeginValue()
{
    if (m_needsComma) {
        m_text.push_back(',');
    }
    m_needsComma = true;
}

JsonWriter& JsonWriter::BeginObject()
{
    BeginValue();
    m_text.push_back('{');
    m_needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::EndObject()
{
    m_text.push_back('}');
    m_needsComma = true;
    return *this;
}

JsonWriter& JsonWriter::BeginArray()
{
    BeginValue();
    m_text.push_back('[');
    m_needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::EndArray()
{
    m_text.push_back(']');
    m_needsComma = true;
    return *this;
}

JsonWriter& JsonWriter::Key(std::string_view name)
{
    BeginValue();
    m_text.push_back('"');
    m_text += name;
    m_text += "\":";
    m_needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view value)
{
    BeginValue();
    m_text.push_back('"');
    AppendEscaped(m_text, value);
    m_text.push_back('"');
    return *this;
}

JsonWriter& JsonWriter::Integer(std::int64_t value)
{
    BeginValue();
    AppendNumber(m_text, value);
    return *this;
}

JsonWriter& JsonWriter::Number(double value)
{
    BeginValue();
    AppendNumber(m_text, value);
    return *this;
}

JsonWriter& JsonWriter::Boolean(bool value)
{
    return Raw(value ? "true" : "false");
}

JsonWriter& JsonWriter::Null()
{
    return Raw("null");
}

JsonWriter& JsonWriter::Raw(std::string_view json)
{
    BeginValue();
    m_text += json;
    return *this;
}

std::string JsonWriter::Take()
{
    m_needsComma = false;
    return std::exchange(m_text, std::string());
}

} // namespace nuqcloud
