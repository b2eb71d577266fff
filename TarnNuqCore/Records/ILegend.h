#pragma once

#include "TarnNuqCoreExport.h"

#include <cstdint>
#include <string>

namespace tarnnuq {

/// A legend: the placeholder drawing of a category in one view.
class TARNNUQCORE_EXPORT ILegend
{
public:
    /// The view in which a legend is drawn.
    enum LegendType : std::int32_t
    {
        Unknown = 0,   ///< Not known.
        Plan = 1,      ///< Seen from above.
        Elevation = 2, ///< Seen from the front.
        Profile = 3    ///< Seen from the side.
    };

    ILegend() = default;
    virtual ~ILegend();

    /// The number under which the host's digital module knows a view.
    /// @param type the view
    /// @return 0, 1, 2 for Plan, Elevation, Profile; -1 for anything else
    static int GetLegendTypeInDigitalModule(LegendType type);

    std::int64_t Id = 0;         ///< Legend id.
    std::wstring Name;           ///< Display name.
    LegendType Type = Unknown;   ///< View in which the legend is drawn.
    std::wstring Thumbnail;      ///< Full URL, or full path of a local legend, of the image.
    std::wstring StandardSource; ///< Source standard; only paged cloud replies carry it.
};

} // namespace tarnnuq
