#pragma once

#include "WideFromUtf8.h"

#include <rapidjson/document.h>

namespace bench {

/// RapidJSON behind the few operations that filling records needs.
class RapidJsonView
{
public:
    using Value = const rapidjson::Value*;

    explicit RapidJsonView(std::string_view body) { m_document.Parse(body.data(), body.size()); }

    Value Data() const { return Member(&m_document, "data"); }

    static Value Member(Value object, const char* key)
    {
        const auto member = object->FindMember(key);
        return member == object->MemberEnd() ? nullptr : &member->value;
    }

    static std::wstring Text(Value value)
    {
        return value && value->IsString() ? WideFromUtf8({value->GetString(), value->GetStringLength()})
                                          : std::wstring();
    }

    static double Number(Value value) { return value && value->IsNumber() ? value->GetDouble() : 0.0; }
    static bool IsNumber(Value value) { return value && value->IsNumber(); }
    static bool Bool(Value value) { return value && value->IsBool() && value->GetBool(); }

    template <typename Use>
    static void ForEach(Value array, Use&& use)
    {
        if (array && array->IsArray()) {
            for (const auto& element : array->GetArray()) {
                use(&element);
            }
        }
    }

    template <typename Use>
    static void ForEachMember(Value object, Use&& use)
    {
        if (object && object->IsObject()) {
            for (const auto& member : object->GetObject()) {
                use(WideFromUtf8({member.name.GetString(), member.name.GetStringLength()}), &member.value);
            }
        }
    }

private:
    rapidjson::Document m_document;
};

} // namespace bench
