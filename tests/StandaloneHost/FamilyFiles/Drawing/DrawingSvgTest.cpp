#include "FamilyFiles/Drawing/DrawingSvg.h"
#include "FamilyFiles/Drawing/DrawingPicture.h"
#include "FamilyFiles/Drawing/DrawingStyle.h"

#include <QColor>
#include <gtest/gtest.h>
#include <string>

namespace familyfiles {
namespace {

Drawing SomeDrawing()
{
    Drawing drawing;
    drawing.low = {0, 0};
    drawing.high = {92, 46};
    drawing.paths = {{LineStyle::Hidden, {{0, 10}, {92, 10}}}, {LineStyle::Centre, {{0, 23}, {92, 23}}},
        {LineStyle::Visible, {{30, 0}, {30.25, 46}}},
        {LineStyle::Outline, {{0, 0}, {92, 0}, {92, 46}, {0, 46}, {0, 0}}},
        {LineStyle::Connector, {{92, 23}, {80, 23}}}};
    return drawing;
}

TEST(DrawingDocuments, AreTheseBytes)
{
    EXPECT_EQ(DrawingSvg(SomeDrawing()),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"512\" height=\"512\" viewBox=\"0 0 100 100\" fill=\"none\" "
        "stroke-linecap=\"round\" stroke-linejoin=\"round\">\n"
        "<path class=\"hidden\" stroke=\"#8a97a8\" vector-effect=\"non-scaling-stroke\" stroke-width=\"1.33\" "
        "stroke-linecap=\"butt\" stroke-dasharray=\"5.32 3.46 5.32 3.46\" d=\"M4 63L96 63\"/>\n"
        "<path class=\"centre\" stroke=\"#c7773f\" vector-effect=\"non-scaling-stroke\" stroke-width=\"1.23\" "
        "stroke-linecap=\"butt\" stroke-dasharray=\"17.2 3.69 3.69 3.69\" d=\"M4 50L96 50\"/>\n"
        "<path class=\"visible\" stroke=\"#5f86b8\" vector-effect=\"non-scaling-stroke\" stroke-width=\"1.84\" "
        "d=\"M34 73L34.25 27\"/>\n"
        "<path class=\"outline\" stroke=\"#5f86b8\" vector-effect=\"non-scaling-stroke\" stroke-width=\"3.69\" "
        "d=\"M4 73L96 73L96 27L4 27Z\"/>\n"
        "<path class=\"connector\" stroke=\"#3f9b62\" vector-effect=\"non-scaling-stroke\" stroke-width=\"2.66\" "
        "d=\"M96 50L84 50\"/>\n"
        "</svg>\n");
}

TEST(DrawingDocuments, OfNothingAreEmptyDocuments)
{
    const std::string svg = DrawingSvg(Drawing());

    EXPECT_NE(svg.find("viewBox"), std::string::npos);
    EXPECT_EQ(svg.find("<path"), std::string::npos);
}

TEST(DrawingDocuments, HaveTheDecimalsThatTheSizeNeeds)
{
    Drawing large;
    large.high = {92000, 0};
    large.paths = {{LineStyle::Visible, {{0, 0}, {30000.0 + 1.0 / 3, 0}}}};
    EXPECT_NE(DrawingSvg(large).find("L34000 50000\""), std::string::npos) << DrawingSvg(large);

    Drawing small;
    small.high = {0.92, 0};
    small.paths = {{LineStyle::Visible, {{0, 0}, {1.0 / 3, 0}}}};
    EXPECT_NE(DrawingSvg(small).find("L0.37333 0.5\""), std::string::npos) << DrawingSvg(small);
}

TEST(DrawingPictures, AreTransparentWhereNothingIsDrawn)
{
    const QImage picture = DrawingPicture(SomeDrawing(), 500);

    ASSERT_EQ(picture.size(), QSize(500, 500));
    EXPECT_EQ(qAlpha(picture.pixel(5, 5)), 0);
    EXPECT_EQ(qAlpha(picture.pixel(250, 350)), 0);
    EXPECT_EQ(picture.pixelColor(300, 365), QColor("#5f86b8")) << "the outline's bottom";
}

TEST(DrawingPictures, AreTheSameEachTime)
{
    EXPECT_EQ(DrawingPicture(SomeDrawing(), 128), DrawingPicture(SomeDrawing(), 128));
}

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TEST(DrawingColours, StandOutFromLightAndDarkWindows)
{
    for (const LineStyle style : kLineStyles) {
        const QColor colour(QLatin1String(LookOf(style).colour));
        EXPECT_GE(Contrast(colour, Qt::white), 2.9) << LookOf(style).name;
        EXPECT_GE(Contrast(colour, QColor(30, 30, 30)), 3.0) << LookOf(style).name;
    }
}

} // namespace
} // namespace familyfiles
