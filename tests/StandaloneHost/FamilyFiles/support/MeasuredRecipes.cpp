#include "support/MeasuredRecipes.h"

#include "support/RecipeValues.h"

#include <cmath>

namespace familyfiles::testing {

namespace {

constexpr double kPi = 3.14159265358979323846;

using Box = std::array<double, 6>;

double Square(double value)
{
    return value * value;
}

std::string Extruded(const std::string& profile, const std::string& rest)
{
    return RecipeOf(R"({"op": "extrude", "profile": {)" + profile + "}, " + rest + "}");
}

std::vector<MeasuredRecipe> Primitives()
{
    const double eccentricity = std::sqrt(1 - Square(20.0 / 60));
    const double coneSlant = std::hypot(100, 30 - 10);
    return {
        {{"Block"}, RecipeOf(R"({"op": "box", "size": [10, 20, 30], "at": [1, 2, 3]})"), 6000, 2200,
            {-4, -8, 3, 6, 12, 33}},
        {{"BlockFromItsCorner"}, RecipeOf(R"({"op": "box", "size": [10, 20, 30], "corner": true})"), 6000, 2200,
            {0, 0, 0, 10, 20, 30}},
        {{"BlockAlongX"}, RecipeOf(R"({"op": "box", "size": [10, 20, 30], "axis": "X", "centred": true})"), 6000, 2200,
            {-15, -5, -10, 15, 5, 10}},
        {{"RoundedBlock"}, RecipeOf(R"({"op": "box", "size": [40, 20, 30], "round": 5})"), (800 - (4 - kPi) * 25) * 30,
            2 * (800 - (4 - kPi) * 25) + (2 * (30 + 10) + 10 * kPi) * 30, {-20, -10, 0, 20, 10, 30}},
        {{"Cylinder"}, RecipeOf(R"({"op": "cylinder", "diameter": 20, "length": 50, "axis": "-Y"})"), kPi * 100 * 50,
            2 * kPi * 100 + 2 * kPi * 10 * 50, {-10, -50, -10, 10, 0, 10}},
        {{"QuarterCylinder"}, RecipeOf(R"({"op": "cylinder", "radius": 10, "length": 50, "angle": 90})"), kPi * 25 * 50,
            2 * kPi * 25 + (5 * kPi + 20) * 50, {0, 0, 0, 10, 10, 50}},
        {{"Cone"}, RecipeOf(R"({"op": "cone", "radius": 30, "radius2": 10, "length": 100})"),
            kPi * 100 / 3 * (900 + 300 + 100), kPi * (900 + 100 + 40 * coneSlant), {-30, -30, 0, 30, 30, 100}},
        {{"PointedCone"}, RecipeOf(R"({"op": "cone", "diameter": 0, "diameter2": 60, "length": 40})"),
            kPi * 900 * 40 / 3, kPi * (900 + 30 * 50), {-30, -30, 0, 30, 30, 40}},
        {{"Sphere"}, RecipeOf(R"({"op": "sphere", "radius": 30, "at": [0, 0, 5]})"), 4 * kPi / 3 * 27000, 4 * kPi * 900,
            {-30, -30, -25, 30, 30, 35}},
        {{"Torus"}, RecipeOf(R"({"op": "torus", "radius": 50, "thickness": 20, "axis": "X"})"),
            2 * kPi * 50 * kPi * 100, 4 * Square(kPi) * 50 * 10, {-10, -60, -60, 10, 60, 60}},
        {{"HalfDome"}, RecipeOf(R"({"op": "dome", "radius": 60, "depth": 60, "axis": "-Z"})"), 2 * kPi / 3 * 216000,
            3 * kPi * 3600, {-60, -60, -60, 60, 60, 0}},
        {{"HighDome"}, RecipeOf(R"({"op": "dome", "radius": 20, "depth": 60})"), 2 * kPi / 3 * 24000,
            kPi * (400 + 1200 / eccentricity * std::asin(eccentricity)) + kPi * 400, {-20, -20, 0, 20, 20, 60}},
        {{"FlatDome"}, RecipeOf(R"({"op": "dome", "radius": 60, "depth": 20, "axis": "X"})"), 2 * kPi / 3 * 72000,
            kPi * 3600 * (1 + (1 - Square(eccentricity)) / eccentricity * std::atanh(eccentricity)) + kPi * 3600,
            {0, -60, -60, 20, 60, 60}},
    };
}

std::vector<MeasuredRecipe> Profiles()
{
    const double hexagon = 2 * std::sqrt(3.0) * Square(10);
    const double ring = kPi * (Square(110) - Square(50) - 8 * Square(9));
    const double rims = 2 * kPi * (110 + 50 + 8 * 9);
    return {
        {{"Pipe"}, RecipeOf(R"({"op": "pipe", "diameter": 60, "wall": 5, "length": 200, "axis": "X"})"),
            kPi * (900 - 625) * 200, 2 * kPi * (900 - 625) + 2 * kPi * 55 * 200, {0, -30, -30, 200, 30, 30}},
        {{"RectangularDuct"},
            Extruded(
                R"("shape": "rectangle", "width": 400, "height": 250, "wall": 2)", R"("length": 1000, "axis": "X")"),
            (400 * 250 - 396 * 246) * 1000.0, 2 * (400 * 250 - 396 * 246) + 2 * (400 + 250 + 396 + 246) * 1000.0,
            {0, -200, -125, 1000, 200, 125}},
        {{"FlatOvalDuct"}, Extruded(R"("shape": "oval", "width": 500, "height": 200)", R"("length": 300, "axis": "X")"),
            (300 * 200 + kPi * 10000) * 300, 2 * (60000 + kPi * 10000) + (600 + 200 * kPi) * 300,
            {0, -250, -100, 300, 250, 100}},
        {{"HexagonalBar"}, Extruded(R"("shape": "regular", "sides": 6, "across": 20)", R"("length": 50)"), hexagon * 50,
            2 * hexagon + 6 * 20 / std::sqrt(3.0) * 50, {-20 / std::sqrt(3.0), -10, 0, 20 / std::sqrt(3.0), 10, 50}},
        {{"PerforatedPlate"},
            Extruded(R"("shape": "rectangle", "width": 500, "height": 300, "holes": [
                {"shape": "rectangle", "width": 400, "height": 10, "grid": {"count": [1, 8], "step": [0, 30]}}])",
                R"("length": 20, "axis": "-Y")"),
            (150000 - 8 * 4000) * 20.0, 2 * (150000 - 8 * 4000) + (1600 + 8 * 820) * 20.0,
            {-250, -20, -150, 250, 0, 150}},
        {{"Flange"}, RecipeOf(R"({"op": "flange", "diameter": 220, "thickness": 20, "bore": 100,
                "bolts": {"count": 8, "circle": 180, "diameter": 18}, "axis": "X", "at": [5, 0, 0]})"),
            ring * 20, 2 * ring + rims * 20, {-15, -110, -110, 5, 110, 110}},
        {{"FlangeWithRaisedFace"}, RecipeOf(R"({"op": "flange", "diameter": 220, "thickness": 20, "bore": 100,
                "bolts": {"count": 8, "circle": 180, "diameter": 18}, "face": {"diameter": 150, "height": 3}})"),
            ring * 17 + kPi * (Square(75) - Square(50)) * 3, 2 * ring + rims * 17 + 2 * kPi * (75 + 50) * 3,
            {-110, -110, -20, 110, 110, 0}},
        {{"RoundedTriangle"},
            Extruded(R"("shape": "polygon", "points": [[0, 0], [80, 0, 10], [80, 60], [0, 60]])", R"("length": 10)"),
            (4800 - (1 - kPi / 4) * 100) * 10, 2 * (4800 - (1 - kPi / 4) * 100) + (260 + 5 * kPi) * 10,
            {0, 0, 0, 80, 60, 10}},
    };
}

std::vector<MeasuredRecipe> Movements()
{
    const double quarter = kPi / 2 * 500;
    const double duct = 400 * 250 - 396 * 246;
    const double skin = 2 * (400 + 250 + 396 + 246);
    const double outerSlant = std::hypot(300, 50);
    return {
        {{"RevolvedRing"},
            RecipeOf(
                R"({"op": "revolve", "profile": {"shape": "rectangle", "width": 20, "height": 30, "at": [60, 0]}})"),
            600 * 2 * kPi * 60, 100 * 2 * kPi * 60, {-70, -70, -15, 70, 70, 15}},
        {{"RevolvedQuarter"}, RecipeOf(R"({"op": "revolve", "angle": 90, "profile":
                {"shape": "rectangle", "width": 20, "height": 30, "at": [60, 0]}})"),
            600 * kPi / 2 * 60, 100 * kPi / 2 * 60 + 1200, {0, 0, -15, 70, 70, 15}},
        {{"RevolvedSolidToTheAxis"},
            RecipeOf(
                R"({"op": "revolve", "profile": {"shape": "polygon", "points": [[0,0], [30,0], [30,50], [0,90]]}})"),
            kPi * 900 * 50 + kPi * 900 * 40 / 3, kPi * 900 + 2 * kPi * 30 * 50 + kPi * 30 * 50,
            {-30, -30, 0, 30, 30, 90}},
        {{"RectangularElbow"}, RecipeOf(R"({"op": "sweep", "path": [[-500, 0, 0], [0, 0, 0, 500], [0, -500, 0]],
                "profile": {"shape": "rectangle", "width": 400, "height": 250, "wall": 2}})"),
            duct * quarter, skin * quarter + 2 * duct, {-500, -500, -125, 200, 200, 125}},
        {{"RoundElbowWithLegs"}, RecipeOf(R"({"op": "sweep", "path": [[-200, 0, 0], [0, 0, 0, 100], [0, 0, 200]],
                "profile": {"shape": "circle", "radius": 40}})"),
            kPi * 1600 * (200 + kPi * 50), 2 * kPi * 1600 + 2 * kPi * 40 * (200 + kPi * 50),
            {-200, -40, -40, 40, 40, 200}},
        {{"MitredCorner"}, RecipeOf(R"({"op": "sweep", "path": [[-200, 0, 0], [0, 0, 0], [0, 0, 200]],
                "profile": {"shape": "rectangle", "width": 60, "height": 40}})"),
            2400 * 400, 2 * 2400 + 200 * 400, {-200, -30, -20, 20, 30, 200}},
        {{"SquareTransition"}, RecipeOf(R"({"op": "loft", "axis": "X", "sections": [
                {"profile": {"shape": "rectangle", "width": 400, "height": 300}},
                {"at": [300, 0, 0], "profile": {"shape": "rectangle", "width": 300, "height": 200}}]})"),
            300 / 6.0 * (400 * 300 + 4 * 350 * 250 + 300 * 200), 400 * 300 + 300 * 200 + 2 * (350 + 250) * outerSlant,
            {0, -200, -150, 300, 200, 150}},
        {{"HollowTransition"}, RecipeOf(R"({"op": "loft", "axis": "X", "sections": [
                {"profile": {"shape": "circle", "radius": 200, "wall": 10}},
                {"at": [300, 0, 0], "profile": {"shape": "circle", "radius": 150, "wall": 10}}]})"),
            kPi * 100 * (40000 + 30000 + 22500 - 36100 - 190 * 140 - 19600),
            kPi * (40000 - 36100 + 22500 - 19600) + kPi * (350 + 330) * outerSlant, {0, -200, -200, 300, 200, 200},
            1e-5},
    };
}

std::vector<MeasuredRecipe> Combinations()
{
    const double lens = kPi * (4 * 30 + 20) * Square(2 * 30 - 20) / 12;
    return {
        {{"TwoFusedBlocks"},
            RecipeOf(R"({"op": "box", "size": [10, 10, 10]}, {"op": "box", "size": [10, 10, 10], "at": [5, 0, 0]},
                {"op": "fuse"})"),
            1500, 2 * 150 + 50 * 10, {-5, -5, 0, 10, 5, 10}},
        {{"DrilledBlock"}, RecipeOf(R"({"op": "cut", "from": {"op": "box", "size": [40, 40, 20]}, "tools": [
                {"op": "cylinder", "radius": 5, "length": 20}]})"),
            40 * 40 * 20 - kPi * 25 * 20, 2 * 1600 + 160 * 20 - 2 * kPi * 25 + 2 * kPi * 5 * 20,
            {-20, -20, 0, 20, 20, 20}},
        {{"CommonOfTwoSpheres"}, RecipeOf(R"({"op": "common", "of": [{"op": "sphere", "radius": 30},
                {"op": "sphere", "radius": 30, "at": [20, 0, 0]}]})"),
            lens, 4 * kPi * 30 * 20,
            {-10, -std::sqrt(800.0), -std::sqrt(800.0), 30, std::sqrt(800.0), std::sqrt(800.0)}, 1e-5},
        {{"CommonOfThree"}, RecipeOf(R"({"op": "common", "of": [{"op": "box", "size": [40, 40, 40]},
                {"op": "box", "size": [40, 40, 40], "at": [10, 0, 0]}, {"op": "box", "size": [40, 40, 40], "at": [0, 10, 10]}]})"),
            30 * 30 * 30, 6 * 900, {-10, -10, 10, 20, 20, 40}},
        {{"PlateWithAPatternOfHoles"},
            RecipeOf(R"({"op": "cut", "from": {"op": "box", "size": [100, 60, 5]}, "tools": [{"op": "linearPattern",
                "count": 4, "step": [20, 0, 0], "count2": 2, "step2": [0, 30, 0],
                "of": {"op": "cylinder", "radius": 4, "length": 5, "at": [-30, -15, 0]}}]})"),
            30000 - 8 * kPi * 16 * 5, 2 * 6000 + 320 * 5 + 8 * (2 * kPi * 4 * 5 - 2 * kPi * 16),
            {-50, -30, 0, 50, 30, 5}},
        {{"DiscWithPegs"},
            RecipeOf(R"({"op": "cylinder", "radius": 50, "length": 10}, {"op": "polarPattern", "count": 6,
                "of": {"op": "cylinder", "radius": 5, "length": 30, "at": [40, 0, 0]}}, {"op": "fuse"})"),
            kPi * 2500 * 10 + 6 * kPi * 25 * 20, 2 * kPi * 2500 + 2 * kPi * 50 * 10 + 6 * 2 * kPi * 5 * 20,
            {-50, -50, 0, 50, 50, 30}},
        {{"MirroredWedge"}, RecipeOf(R"({"op": "mirror", "plane": "X", "of": {"op": "extrude", "length": 10, "profile":
                {"shape": "polygon", "points": [[0, 0], [30, 0], [0, 40]]}}})"),
            2 * 600 * 10, 4 * 600 + 2 * (30 + 50) * 10, {-30, 0, 0, 30, 40, 10}},
        {{"MirrorImageAlone"}, RecipeOf(R"({"op": "mirror", "plane": "X", "keep": false, "at": [50, 0, 0], "of":
                {"op": "box", "size": [10, 20, 30]}})"),
            6000, 2200, {95, -10, 0, 105, 10, 30}},
        {{"ScaledTurnedAndMovedBlock"},
            RecipeOf(R"({"op": "transform", "scale": 2, "rotate": {"axis": "Z", "angle": 90}, "move": [100, 0, 0],
                "of": {"op": "box", "size": [10, 20, 30], "corner": true}})"),
            48000, 8800, {60, 0, 0, 100, 20, 60}},
        {{"FilletedBlock"}, RecipeOf(R"({"op": "fillet", "radius": 5, "edges": {"along": "Z"}, "of":
                {"op": "box", "size": [40, 20, 30]}})"),
            (800 - (4 - kPi) * 25) * 30, 2 * (800 - (4 - kPi) * 25) + (2 * (30 + 10) + 10 * kPi) * 30,
            {-20, -10, 0, 20, 10, 30}},
        {{"ChamferedTop"}, RecipeOf(R"({"op": "chamfer", "distance": 5, "edges": {"plane": "Z", "offset": 30}, "of":
                {"op": "cylinder", "radius": 20, "length": 30}})"),
            kPi * 400 * 25 + kPi * 5 / 3 * (400 + 300 + 225),
            kPi * 400 + kPi * 225 + 2 * kPi * 20 * 25 + kPi * 35 * std::sqrt(50.0), {-20, -20, 0, 20, 20, 30}},
        {{"ThreeSolidsApart"},
            R"({"solids": "1+2", "steps": [{"op": "linearPattern", "count": 3, "step": [20, 0, 0], "of":
                {"op": "box", "size": [10, 10, 10]}}]})",
            3000, 1800, {-5, -5, 0, 45, 5, 10}},
    };
}

} // namespace

const std::vector<MeasuredRecipe>& MeasuredRecipes()
{
    static const std::vector<MeasuredRecipe> recipes = [] {
        std::vector<MeasuredRecipe> all;
        for (const auto& some : {Primitives(), Profiles(), Movements(), Combinations()}) {
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return recipes;
}

} // namespace familyfiles::testing
