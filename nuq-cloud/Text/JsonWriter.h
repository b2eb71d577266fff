#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nuqcloud {

/// Puts a JSON text together in one buffer, so that ready JSON from the catalogue goes out without being parsed.
///
/// Commas are set by the writer; the caller opens, closes and names in the right order. Texts must be UTF-8.
class JsonWriter
{
public:
    JsonWriter& BeginObject();
    JsonWriter& EndObject();
    JsonWriter& BeginArray();
    JsonWriter& EndArray();

    /// Names the next member. The name is one of ours and is written as it is.
    JsonWriter& Key(std::string_view name);

    JsonWriter& Text(std::string_view value);
    JsonWriter& Integer(std::int64_t value);
    /// The shortest text that reads back as the same number.
    JsonWriter& Number(double value);
    JsonWriter& Boolean(bool value);
    JsonWriter& Null();
    /// A whole JSON value that is ready.
    JsonWriter& Raw(std::string_view json);

    /// Hands the text over and leaves the writer empty.
    std::string Take();

private:
    void BeginValue();

    std::string m_text;
    bool m_needsComma = false;
};

} // namespace nuqcloud
