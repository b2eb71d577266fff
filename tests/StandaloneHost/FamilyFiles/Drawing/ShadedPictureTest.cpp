#include "FamilyFiles/Drawing/ShadedPicture.h"
#include "support/BuiltSolid.h"

#include <QColor>
#include <gtest/gtest.h>

namespace familyfiles {
namespace {

using familyfiles::testing::BuiltSolidOf;
using familyfiles::testing::Kernel;
using familyfiles::testing::RecipeOf;

const Point3 kUsual{1, -1.2, 0.9};

TriangleMesh MeshOf(const std::string& recipe)
{
    const auto solid = BuiltSolidOf(recipe);
    Reason reason;
    auto mesh = Kernel().Mesh(*solid, reason);
    EXPECT_TRUE(mesh.has_value()) << reason.english;
    return mesh.value_or(TriangleMesh());
}

/// How many pixels are covered at all.
int CoveredPixels(const QImage& picture)
{
    int count = 0;
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            count += qAlpha(picture.pixel(column, row)) > 0 ? 1 : 0;
        }
    }
    return count;
}

TEST(ShadedPictures, HaveTheWantedSizeAndATransparentMargin)
{
    const TriangleMesh mesh = MeshOf(RecipeOf(R"({"op": "sphere", "radius": 30})"));

    for (const int pixels : {64, 128, 256, 512}) {
        const QImage picture = ShadedPicture(mesh, kUsual, pixels);
        ASSERT_EQ(picture.size(), QSize(pixels, pixels));
        EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
        EXPECT_EQ(qAlpha(picture.pixel(pixels / 2, pixels / 50)), 0);
        EXPECT_EQ(qAlpha(picture.pixel(pixels / 2, pixels / 2)), 255);
        // A ball fills nine tenths of the width.
        EXPECT_NEAR(CoveredPixels(picture), 3.1416 * 0.45 * 0.45 * pixels * pixels, pixels * 3);
    }
}

TEST(ShadedPictures, AreTheSameEachTime)
{
    const std::string recipe = RecipeOf(R"({"op": "torus", "radius": 30, "thickness": 15})");

    EXPECT_EQ(ShadedPicture(MeshOf(recipe), kUsual, 128), ShadedPicture(MeshOf(recipe), kUsual, 128));
}

TEST(ShadedPictures, ShowTheNearerSurface)
{
    const TriangleMesh mesh = MeshOf(RecipeOf(R"(
        {"op": "box", "size": [100, 10, 100], "at": [0, 50, 0], "color": "#ff0000"},
        {"op": "cylinder", "axis": "Y", "diameter": 10, "length": 55, "at": [0, 0, 50], "color": "#0000ff"},
        {"op": "fuse"})"));

    const QColor middle = ShadedPicture(mesh, {0, -1, 0}, 128).pixelColor(64, 64);
    const QColor corner = ShadedPicture(mesh, {0, -1, 0}, 128).pixelColor(16, 16);
    EXPECT_GT(middle.blue(), middle.red());
    EXPECT_GT(corner.red(), corner.blue());
    const QColor behind = ShadedPicture(mesh, {0, 1, 0}, 128).pixelColor(64, 64);
    EXPECT_GT(behind.red(), behind.blue());
}

TEST(ShadedPictures, LightTheTopOfABlockMostAndItsRightSideLeast)
{
    const QImage picture = ShadedPicture(MeshOf(RecipeOf(R"({"op": "box", "size": [100, 100, 100]})")), kUsual, 256);

    const int top = qGray(picture.pixel(128, 60));
    const int front = qGray(picture.pixel(80, 160));
    const int right = qGray(picture.pixel(190, 160));
    EXPECT_GT(top, front + 15);
    EXPECT_GT(front, right + 8);
    EXPECT_GT(right, 60) << "no side is black";
}

TEST(ShadedPictures, ShadeRoundSurfacesSmoothly)
{
    const QImage picture =
        ShadedPicture(MeshOf(RecipeOf(R"({"op": "cylinder", "diameter": 100, "length": 100})")), {0, -1, 0}, 256);

    // Neighbouring pixels across the middle of the cylinder never jump as the facets of its triangles would.
    for (int column = 30; column < 225; ++column) {
        EXPECT_LE(std::abs(qGray(picture.pixel(column, 128)) - qGray(picture.pixel(column + 1, 128))), 6) << column;
    }
}

TEST(ShadedPictures, StandOutFromLightAndDarkWindows)
{
    for (const char* material : {"white", "black", "ceramic", "rubber", "plasticWhite", "castIron", "lamp"}) {
        const TriangleMesh mesh = MeshOf(RecipeOf(
            R"({"op": "cylinder", "diameter": 60, "length": 100, "color": ")" + std::string(material) + R"("})"));
        const QImage picture = ShadedPicture(mesh, kUsual, 128);
        int nearWhite = 0;
        int nearDark = 0;
        int covered = 0;
        for (int row = 0; row < 128; ++row) {
            for (int column = 0; column < 128; ++column) {
                const QRgb pixel = picture.pixel(column, row);
                if (qAlpha(pixel) == 255) {
                    ++covered;
                    nearWhite += qGray(pixel) > 235 ? 1 : 0;
                    nearDark += qGray(pixel) < 45 ? 1 : 0;
                }
            }
        }
        EXPECT_LT(nearWhite, covered * 0.6) << material;
        EXPECT_LT(nearDark, covered * 0.4) << material;
    }
}

TEST(ShadedPictures, TakeACameraFromStraightAboveAndBelow)
{
    const TriangleMesh mesh = MeshOf(RecipeOf(R"({"op": "box", "size": [100, 50, 20]})"));

    const QImage above = ShadedPicture(mesh, {0, 0, 1}, 100);
    EXPECT_EQ(qAlpha(above.pixel(10, 50)), 255);
    EXPECT_EQ(qAlpha(above.pixel(50, 20)), 0);
    EXPECT_EQ(qAlpha(ShadedPicture(mesh, {0, 0, -1}, 100).pixel(50, 50)), 255);
}

TEST(ShadedPictures, OfNothingAreTransparent)
{
    EXPECT_EQ(CoveredPixels(ShadedPicture(TriangleMesh(), kUsual, 64)), 0);
}

TEST(SurfaceMeshes, LookOutwardsEverywhere)
{
    const TriangleMesh mesh = MeshOf(RecipeOf(R"({"op": "mirror", "plane": "X", "keep": false, "of":
        {"op": "cut", "from": {"op": "box", "size": [60, 40, 30]}, "tools": [{"op": "cylinder", "radius": 9, "length": 30}]}})"));

    double volume = 0;
    for (const MeshTriangle& triangle : mesh.triangles) {
        const Point3& a = mesh.vertices[triangle.vertices[0]].position;
        const Point3& b = mesh.vertices[triangle.vertices[1]].position;
        const Point3& c = mesh.vertices[triangle.vertices[2]].position;
        const Point3 facet = Cross(b - a, c - a);
        volume += Dot(a, Cross(b, c)) / 6;
        for (const auto vertex : triangle.vertices) {
            EXPECT_GT(Dot(facet, mesh.vertices[vertex].normal), 0);
        }
    }
    EXPECT_NEAR(volume, 60 * 40 * 30 - 3.1416 * 81 * 30, 100);
}

TEST(SurfaceMeshes, KeepTheMaterialsOfFacesThroughOperations)
{
    const TriangleMesh mesh = MeshOf(RecipeOf(R"({"id": "one", "op": "box", "size": [20, 20, 20], "color": "brass"},
        {"op": "mirror", "plane": "X", "of": {"op": "transform", "move": [30, 0, 0], "scale": 0.5, "of": "one"}},
        {"op": "box", "size": [80, 10, 5]}, {"op": "fuse"})"));

    ASSERT_EQ(mesh.materials.size(), 2U);
    EXPECT_EQ(mesh.materials[1], "brass");
    for (const MeshTriangle& triangle : mesh.triangles) {
        const Point3 middle =
            (mesh.vertices[triangle.vertices[0]].position + mesh.vertices[triangle.vertices[1]].position +
                mesh.vertices[triangle.vertices[2]].position) *
            (1.0 / 3);
        // Above the bar there is only brass.
        if (middle.z > 5.01) {
            EXPECT_EQ(triangle.material, 1);
        }
        if (std::abs(middle.x) < 20) {
            EXPECT_EQ(triangle.material, 0);
        }
    }
}

} // namespace
} // namespace familyfiles
