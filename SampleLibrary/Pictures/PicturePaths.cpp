#include "Pictures/PicturePaths.h"

namespace samplelibrary {

std::string ThumbnailPath(const std::string& slug, int pixels)
{
    return "thumbnails/" + slug + '/' + std::to_string(pixels) + ".png";
}

std::string LegendPath(const std::string& slug, std::size_t view, const std::string& suffix)
{
    return "legends/" + slug + '/' + LegendViews.at(view) + '.' + suffix;
}

} // namespace samplelibrary
