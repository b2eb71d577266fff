#pragma once

#include "TarnNuqCoreExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarnnuq {

/// How a cloud category maps onto a category of the host's component editor.
class TARNNUQCORE_EXPORT ICategoryMapping
{
public:
    /// Discipline of the building-services trade, by its number on the wire.
    enum MajorType : std::int32_t
    {
        Unknown = -1,  ///< Any other number.
        Plumbing = 0,  ///< Water, drainage, gas, fire protection.
        Hvac = 1,      ///< Ventilation, heating, cooling.
        Electrical = 2 ///< Power, lighting, communication, controls.
    };

    ICategoryMapping() = default;
    virtual ~ICategoryMapping();

    std::int32_t CategoryId = 0;            ///< Id of the cloud category.
    std::wstring CategoryCode;              ///< Code of the cloud category.
    std::vector<std::wstring> Names;        ///< The mapped names, in the order of the reply.
    MajorType Major = Plumbing;             ///< Discipline of the mapping.
    std::wstring ComponentEditorCategoryId; ///< Id of the category in the host's component editor.
};

} // namespace tarnnuq
