#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace samplelibrary {

/// Sizes of the thumbnails in pixels, smallest first.
constexpr std::array<int, 4> ThumbnailPixels{64, 128, 256, 512};

/// Size of the thumbnail that stands in lists.
constexpr int ListThumbnailPixels = 128;

/// Names of the legends' views in paths, by view number.
constexpr std::array<const char*, 3> LegendViews{"plan", "elevation", "profile"};

/// Size of the legends' pixel pictures.
constexpr int LegendPixels = 256;

/// Path of a thumbnail below the folder of static files.
std::string ThumbnailPath(const std::string& slug, int pixels);

/// Path of a legend below the folder of static files; @p suffix is "svg" or "png".
std::string LegendPath(const std::string& slug, std::size_t view, const std::string& suffix);

} // namespace samplelibrary
