#pragma once

#include "Reading/BilingualText.h"

#include <string>
#include <vector>

namespace samplelibrary {

/// A kind of distribution element of ISO 16739-1, such as pump or valve.
struct Kind
{
    int Number = 0;      ///< stable, 1 to 99: part of category and component ids
    std::string Element; ///< name of the kind in the standard without "Ifc", for example "PipeSegment"
    std::string Slug;    ///< folder of its pictures
    std::string Code;    ///< middle part of category codes
    BilingualText Name;
    std::string Tint;            ///< name of the colour of its pictures
    std::string PlanSymbol;      ///< drawing of the plan legend and of the thumbnails
    std::string ElevationSymbol; ///< drawing of the elevation legend
    std::string ProfileSymbol;   ///< drawing of the profile legend
    std::vector<std::string> PredefinedTypes;
};

} // namespace samplelibrary
