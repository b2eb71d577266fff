#pragma once

#include "Api/Language.h"
#include "Api/Tweaks.h"
#include "Catalogue/CategoryTable.h"
#include "Catalogue/Records.h"
#include "Text/JsonWriter.h"

namespace nuqcloud {

/// Turns records into the objects of the wire format. Lives for one reply.
class RecordJson
{
public:
    RecordJson(const CategoryTable& categories, Language language, Tweaks tweaks)
        : m_categories(categories), m_language(language), m_tweaks(tweaks)
    {
    }

    void Category(JsonWriter& out, const nuqcloud::Category& category, std::int64_t count) const;
    void Component(JsonWriter& out, const ComponentRecord& component) const;

    /// @param familyTypeNames JSON array
    void Detail(JsonWriter& out, const ComponentDetailRecord& detail, const std::string& familyTypeNames) const;
    void Legend(JsonWriter& out, const LegendRecord& legend) const;
    void Mapping(JsonWriter& out, const MappingRecord& mapping) const;
    void Project(JsonWriter& out, const ProjectRecord& project) const;

private:
    void ComponentMembers(JsonWriter& out, const ComponentRecord& component) const;

    const CategoryTable& m_categories;
    const Language m_language;
    const Tweaks m_tweaks;
};

} // namespace nuqcloud
