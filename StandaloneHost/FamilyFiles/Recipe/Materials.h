#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace familyfiles {

/// How a material looks in shaded pictures and in exchanged files.
struct MaterialLook
{
    std::array<std::uint8_t, 3> colour{}; ///< red, green, blue
    double gloss = 0;                     ///< strength of the highlight, from 0 to 1
    double sharpness = 20;                ///< exponent of the highlight
    double metal = 0;                     ///< how much the highlight and the surroundings take the colour, from 0 to 1
};

/// The look of a material by its name or as "#rrggbb"; nothing when there is no such material.
std::optional<MaterialLook> FindMaterial(std::string_view name);

/// @p name when it is a material. Throws RecipeFailure.
const std::string& CheckedMaterial(const std::string& name);

} // namespace familyfiles
