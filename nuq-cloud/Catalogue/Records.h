#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace nuqcloud {

/// A text in both languages of the catalogue.
struct BilingualText
{
    std::string zh;
    std::string en;
};

/// One component as lists show it.
struct ComponentRecord
{
    std::int64_t position = 0;
    std::string id;
    std::int64_t version = 0;
    std::string categoryCode;
    BilingualText name;
    std::string thumbnail;
    std::string status;
    std::string publicId; ///< the catalogue's component that it is or was taken from
};

/// What only a component's own page shows.
struct ComponentDetailRecord
{
    ComponentRecord component;
    std::string thumbnailSizes; ///< JSON array, ready to be sent
    std::string familyTypes;    ///< JSON array of {"name", "values"}
};

/// One placeholder drawing.
struct LegendRecord
{
    std::int64_t id = 0;
    int view = 0;
    BilingualText name;
    std::string thumbnail;
    std::string standardSource;
};

/// One row of the component editor's category mapping.
struct MappingRecord
{
    std::int64_t categoryId = 0;
    std::string categoryCode;
    std::string componentEditorCategoryId;
    std::string names; ///< JSON array of texts, ready to be sent
    int major = 0;
};

/// A project whose library can be asked.
struct ProjectRecord
{
    std::string id;
    BilingualText name;
};

} // namespace nuqcloud
