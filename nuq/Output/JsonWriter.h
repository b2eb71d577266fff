#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class QString;

namespace nuq {

/** Number of the documents' shape: raised when a member changes its meaning or goes away, not when one is added. */
inline constexpr std::int32_t kSchema = 1;

/**
 * Writes one JSON document into one buffer, front to back, without building a tree.
 *
 * The caller writes the keys of an object in ascending order; in debug builds the writer insists on it. Control
 * characters, also those beyond ASCII, are escaped, so that a document shown in a terminal moves no cursor.
 */
class JsonWriter
{
public:
    void BeginObject();
    void EndObject();

    /** @param isList whether each element starts on a line of its own, so that line tools can read long lists */
    void BeginArray(bool isList = false);
    void EndArray();

    /** The name of the next member; plain ASCII, from the program, never from outside. */
    void Key(std::string_view name);

    /** A name that comes from outside. */
    void Key(const std::wstring& name);

    void Text(std::wstring_view text);
    void Text(const QString& text);
    /** @param text UTF-8 */
    void Text(std::string_view text);
    void Number(std::int64_t number);
    /** A whole number as a text, as ids are written. */
    void NumberAsText(std::int64_t number);
    /** The shortest text that reads back as the same number; null for what JSON cannot say (infinite, not a number). */
    void Number(double number);
    void Bool(bool value);
    void Null();

    /** Key and value in one; for the many short members of a record. */
    template <class Value>
    void Member(std::string_view name, const Value& value)
    {
        Key(name);
        Put(value);
    }

    /**
     * A member that is a long list, each element on a line of its own.
     * @param writeElement called with this writer and each element in turn
     */
    template <class Elements, class WriteElement>
    void List(std::string_view name, const Elements& elements, const WriteElement& writeElement)
    {
        Key(name);
        BeginArray(true);
        for (const auto& element : elements)
            writeElement(*this, element);
        EndArray();
    }

    /** The document so far. */
    const std::string& Buffer() const { return m_buffer; }

    /** Hands over the finished document with a line end behind it, and starts a new one. */
    std::string Take();

    /**
     * Drops what was written so far, which the caller has passed on, but keeps its memory. Within a document it goes
     * on where it was: that is how one that is longer than memory is written.
     */
    void Clear();

    void Reserve(std::size_t bytes) { m_buffer.reserve(bytes); }

private:
    void Put(const std::wstring& value) { Text(std::wstring_view(value)); }
    void Put(const QString& value) { Text(value); }
    void Put(std::string_view value) { Text(value); }
    void Put(const char* value) { Text(std::string_view(value)); }
    void Put(bool value) { Bool(value); }
    void Put(std::int32_t value) { Number(static_cast<std::int64_t>(value)); }
    void Put(std::int64_t value) { Number(value); }
    void Put(double value) { Number(value); }

    struct Level
    {
        bool isList = false;
        bool isEmpty = true;
        std::string lastKey; // kept in debug builds only
    };

    void BeforeValue();
    void Open(char bracket, bool isList);
    void Close(char bracket);
    void CheckOrder(std::string_view name);
    void AppendSpecial(char32_t codePoint);
    void AppendEscaped(char32_t codePoint);

    std::string m_buffer;
    std::vector<Level> m_levels;
    bool m_afterKey = false;
};

} // namespace nuq
