#pragma once

#include "WideFromUtf8.h"

#include <optional>
#include <simdjson.h>

namespace bench {

/// simdjson's DOM behind the few operations that filling records needs. The parser's buffers are kept between replies.
class SimdjsonView
{
public:
    using Value = std::optional<simdjson::dom::element>;

    explicit SimdjsonView(std::string_view body)
    {
        static simdjson::dom::parser parser;
        m_document = parser.parse(body.data(), body.size());
    }

    Value Data() const { return Member(m_document, "data"); }

    static Value Member(const Value& object, const char* key)
    {
        simdjson::dom::element member;
        return object && object->at_key(key).get(member) == simdjson::SUCCESS ? Value(member) : std::nullopt;
    }

    static std::wstring Text(const Value& value)
    {
        std::string_view text;
        return value && value->get(text) == simdjson::SUCCESS ? WideFromUtf8(text) : std::wstring();
    }

    static double Number(const Value& value)
    {
        double number = 0.0;
        return value && value->get(number) == simdjson::SUCCESS ? number : 0.0;
    }

    static bool IsNumber(const Value& value) { return value && value->is_number(); }

    static bool Bool(const Value& value)
    {
        bool answer = false;
        return value && value->get(answer) == simdjson::SUCCESS && answer;
    }

    template <typename Use>
    static void ForEach(const Value& array, Use&& use)
    {
        simdjson::dom::array elements;
        if (array && array->get(elements) == simdjson::SUCCESS) {
            for (const simdjson::dom::element element : elements) {
                use(Value(element));
            }
        }
    }

    template <typename Use>
    static void ForEachMember(const Value& object, Use&& use)
    {
        simdjson::dom::object members;
        if (object && object->get(members) == simdjson::SUCCESS) {
            for (const auto& member : members) {
                use(WideFromUtf8(member.key), Value(member.value));
            }
        }
    }

private:
    Value m_document;
};

} // namespace bench
