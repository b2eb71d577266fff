#include "Pictures/SymbolPicture.h"

#include <gtest/gtest.h>

namespace {

using samplelibrary::DrawSymbol;
using samplelibrary::ShapeStyle;
using samplelibrary::Symbol;

const Symbol Square{{ShapeStyle::Solid, {{'R', {25, 25, 50, 50}}}}};

TEST(SymbolPicture, FillsWhatIsInsideAndNothingElse)
{
    const QImage image = DrawSymbol(Square, QColor(10, 120, 200), 100, 4.0);
    EXPECT_EQ(image.pixelColor(50, 50), QColor(10, 120, 200, 255));
    EXPECT_EQ(image.pixelColor(10, 50).alpha(), 0);
    EXPECT_EQ(image.pixelColor(90, 90).alpha(), 0);
}

TEST(SymbolPicture, ScalesWithItsSize)
{
    const QImage image = DrawSymbol(Square, Qt::red, 400, 4.0);
    EXPECT_EQ(image.pixelColor(101, 101).alpha(), 255);
    EXPECT_EQ(image.pixelColor(99, 99).alpha(), 0);
    EXPECT_EQ(image.pixelColor(298, 298).alpha(), 255);
    EXPECT_EQ(image.pixelColor(302, 302).alpha(), 0);
}

TEST(SymbolPicture, IsTheSameDrawingAsSvg)
{
    const Symbol symbol{
        {ShapeStyle::Dashed, {{'M', {0, 50}}, {'L', {100, 50}}}}, {ShapeStyle::Soft, {{'O', {50, 50, 20}}}}};
    EXPECT_EQ(samplelibrary::SymbolSvg(symbol, QColor(0x12, 0x34, 0x56), 2.0),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 100\" width=\"256\" height=\"256\" "
        "fill-rule=\"evenodd\" "
        "stroke-linecap=\"round\" stroke-linejoin=\"round\">\n"
        "  <path d=\"M 0 50 L 100 50\" fill=\"none\" stroke=\"#123456\" stroke-width=\"1.1\" stroke-dasharray=\"4.4 "
        "2.75\" "
        "stroke-linecap=\"butt\"/>\n"
        "  <path d=\"M 30 50 A 20 20 0 1 0 70 50 A 20 20 0 1 0 30 50 Z\" fill=\"#123456\" fill-opacity=\"0.22\" "
        "stroke=\"#123456\" "
        "stroke-width=\"2\"/>\n"
        "</svg>\n");
}

} // namespace
