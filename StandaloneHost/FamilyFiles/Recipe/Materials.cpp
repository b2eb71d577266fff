#include "FamilyFiles/Recipe/Materials.h"

#include "FamilyFiles/Recipe/RecipeFailure.h"

#include <algorithm>
#include <charconv>

namespace familyfiles {

namespace {

struct NamedMaterial
{
    std::string_view name;
    MaterialLook look;
};

// Colours are chosen to stay apart from white as well as from a dark window.
constexpr std::array<NamedMaterial, 28> kMaterials{{
    {"steel", {{164, 172, 182}, 0.45, 36, 0.6}},
    {"castIron", {{112, 120, 131}, 0.22, 14, 0.3}},
    {"stainless", {{190, 197, 204}, 0.70, 60, 0.8}},
    {"galvanised", {{176, 186, 192}, 0.40, 24, 0.6}},
    {"aluminium", {{198, 203, 208}, 0.45, 30, 0.7}},
    {"copper", {{200, 117, 70}, 0.60, 44, 0.9}},
    {"brass", {{206, 168, 78}, 0.60, 44, 0.9}},
    {"bronze", {{168, 122, 66}, 0.45, 32, 0.8}},
    {"plasticWhite", {{228, 231, 234}, 0.25, 22, 0}},
    {"plasticGrey", {{138, 144, 150}, 0.25, 22, 0}},
    {"plasticBlack", {{82, 86, 92}, 0.30, 22, 0}},
    {"rubber", {{82, 84, 88}, 0.10, 8, 0}},
    {"ceramic", {{236, 238, 240}, 0.65, 70, 0}},
    {"glass", {{150, 196, 214}, 0.80, 90, 0}},
    {"red", {{196, 48, 42}, 0.40, 30, 0}},
    {"blue", {{46, 104, 176}, 0.40, 30, 0}},
    {"green", {{58, 140, 84}, 0.40, 30, 0}},
    {"yellow", {{226, 180, 44}, 0.35, 26, 0}},
    {"orange", {{222, 122, 44}, 0.35, 26, 0}},
    {"cableGreen", {{94, 158, 62}, 0.25, 20, 0}},
    {"painted", {{92, 128, 152}, 0.35, 28, 0}},
    {"black", {{84, 88, 94}, 0.35, 26, 0}},
    {"white", {{234, 236, 238}, 0.25, 22, 0}},
    {"wood", {{176, 132, 86}, 0.12, 12, 0}},
    {"lamp", {{255, 226, 150}, 0.20, 12, 0}},
    {"screen", {{56, 92, 112}, 0.80, 90, 0}},
    {"insulation", {{214, 200, 158}, 0.08, 8, 0}},
    {"pvcOrange", {{204, 112, 62}, 0.25, 20, 0}},
}};

std::optional<MaterialLook> ReadColour(std::string_view text)
{
    unsigned value = 0;
    const char* end = text.data() + text.size();
    if (text.size() != 7 || text[0] != '#') {
        return std::nullopt;
    }
    const auto result = std::from_chars(text.data() + 1, end, value, 16);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    MaterialLook look;
    look.colour = {static_cast<std::uint8_t>(value >> 16U), static_cast<std::uint8_t>((value >> 8U) & 0xFFU),
        static_cast<std::uint8_t>(value & 0xFFU)};
    look.gloss = 0.3;
    return look;
}

} // namespace

std::optional<MaterialLook> FindMaterial(std::string_view name)
{
    const auto* const found = std::find_if(
        kMaterials.begin(), kMaterials.end(), [name](const NamedMaterial& material) { return material.name == name; });
    if (found != kMaterials.end()) {
        return found->look;
    }
    return ReadColour(name);
}

const std::string& CheckedMaterial(const std::string& name)
{
    if (!FindMaterial(name)) {
        throw RecipeFailure(
            "recipe.unknown-material", "There is no material \"" + name + '"', "没有名为“" + name + "”的材料");
    }
    return name;
}

} // namespace familyfiles
