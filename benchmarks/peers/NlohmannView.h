#pragma once

#include "WideFromUtf8.h"

#include <nlohmann/json.hpp>

namespace bench {

/// nlohmann/json behind the few operations that filling records needs.
class NlohmannView
{
public:
    using Value = const nlohmann::json*;

    explicit NlohmannView(std::string_view body) : m_document(nlohmann::json::parse(body)) {}

    Value Data() const { return Member(&m_document, "data"); }

    static Value Member(Value object, const char* key)
    {
        const auto member = object->find(key);
        return member == object->end() ? nullptr : &*member;
    }

    static std::wstring Text(Value value)
    {
        return value && value->is_string() ? WideFromUtf8(value->get_ref<const std::string&>()) : std::wstring();
    }

    static double Number(Value value) { return value && value->is_number() ? value->get<double>() : 0.0; }
    static bool IsNumber(Value value) { return value && value->is_number(); }
    static bool Bool(Value value) { return value && value->is_boolean() && value->get<bool>(); }

    template <typename Use>
    static void ForEach(Value array, Use&& use)
    {
        if (array && array->is_array()) {
            for (const auto& element : *array) {
                use(&element);
            }
        }
    }

    template <typename Use>
    static void ForEachMember(Value object, Use&& use)
    {
        if (object && object->is_object()) {
            for (const auto& member : object->items()) {
                use(WideFromUtf8(member.key()), &member.value());
            }
        }
    }

private:
    nlohmann::json m_document;
};

} // namespace bench
