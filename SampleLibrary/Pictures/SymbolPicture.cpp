#include "Pictures/SymbolPicture.h"

#include "Reading/Texts.h"

#include <QPainter>
#include <QPainterPath>

namespace samplelibrary {

namespace {

constexpr double Extent = 100.0;
constexpr double ThinShare = 0.55;
constexpr double SoftOpacity = 0.22;

/// Lengths of dashes and gaps, in stroke widths.
constexpr double DashLength = 4.0;
constexpr double GapLength = 2.5;

double WidthOf(ShapeStyle style, double strokeWidth)
{
    return style == ShapeStyle::Thin || style == ShapeStyle::Dashed ? strokeWidth * ThinShare : strokeWidth;
}

bool IsStroked(ShapeStyle style)
{
    return style != ShapeStyle::Solid;
}

bool IsFilled(ShapeStyle style)
{
    return style == ShapeStyle::Solid || style == ShapeStyle::Soft;
}

void AddStep(QPainterPath& path, const PathStep& step)
{
    const std::vector<double>& n = step.Numbers;
    switch (step.Command) {
    case 'M':
        path.moveTo(n[0], n[1]);
        break;
    case 'L':
        path.lineTo(n[0], n[1]);
        break;
    case 'C':
        path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
        break;
    case 'O':
        path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
        break;
    case 'R':
        path.addRect(n[0], n[1], n[2], n[3]);
        break;
    default:
        path.closeSubpath();
    }
}

QPainterPath PathOf(const SymbolShape& shape)
{
    QPainterPath path;
    for (const PathStep& step : shape.Steps) {
        AddStep(path, step);
    }
    return path;
}

QPen PenFor(ShapeStyle style, const QColor& colour, double strokeWidth)
{
    QPen pen(colour, WidthOf(style, strokeWidth), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (style == ShapeStyle::Dashed) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({DashLength, GapLength});
    }
    return pen;
}

QColor FillFor(ShapeStyle style, QColor colour)
{
    if (style == ShapeStyle::Soft) {
        colour.setAlphaF(SoftOpacity);
    }
    return colour;
}

std::string Numbers(const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers) {
        text += ' ' + NumberText(number, 2);
    }
    return text;
}

/// Circles and rectangles as path steps, so that a shape is one element.
std::string PathData(const PathStep& step)
{
    const std::vector<double>& n = step.Numbers;
    if (step.Command == 'O') {
        return "M" + Numbers({n[0] - n[2], n[1]}) + " A" + Numbers({n[2], n[2], 0, 1, 0, n[0] + n[2], n[1]}) + " A" +
               Numbers({n[2], n[2], 0, 1, 0, n[0] - n[2], n[1]}) + " Z ";
    }
    if (step.Command == 'R') {
        return "M" + Numbers({n[0], n[1]}) + " L" + Numbers({n[0] + n[2], n[1]}) + " L" +
               Numbers({n[0] + n[2], n[1] + n[3]}) + " L" + Numbers({n[0], n[1] + n[3]}) + " Z ";
    }
    return step.Command + Numbers(n) + ' ';
}

std::string ShapeSvg(const SymbolShape& shape, const std::string& colour, double strokeWidth)
{
    std::string data;
    for (const PathStep& step : shape.Steps) {
        data += PathData(step);
    }
    const double width = WidthOf(shape.Style, strokeWidth);
    std::string element =
        "  <path d=\"" + Trimmed(data) + "\" fill=\"" + (IsFilled(shape.Style) ? colour : "none") + '"';
    if (shape.Style == ShapeStyle::Soft) {
        element += " fill-opacity=\"" + NumberText(SoftOpacity, 2) + '"';
    }
    if (IsStroked(shape.Style)) {
        element += " stroke=\"" + colour + "\" stroke-width=\"" + NumberText(width, 2) + '"';
    }
    if (shape.Style == ShapeStyle::Dashed) {
        element += " stroke-dasharray=\"" + NumberText(DashLength * width, 2) + ' ' + NumberText(GapLength * width, 2) +
                   "\" stroke-linecap=\"butt\"";
    }
    return element + "/>\n";
}

} // namespace

QImage DrawSymbol(const Symbol& symbol, const QColor& colour, int pixels, double strokeWidth)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / Extent, pixels / Extent);
    for (const SymbolShape& shape : symbol) {
        painter.setPen(IsStroked(shape.Style) ? PenFor(shape.Style, colour, strokeWidth) : QPen(Qt::NoPen));
        painter.setBrush(IsFilled(shape.Style) ? QBrush(FillFor(shape.Style, colour)) : QBrush(Qt::NoBrush));
        painter.drawPath(PathOf(shape));
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

std::string SymbolSvg(const Symbol& symbol, const QColor& colour, double strokeWidth)
{
    std::string document =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 100\" width=\"256\" height=\"256\" "
        "fill-rule=\"evenodd\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
    for (const SymbolShape& shape : symbol) {
        document += ShapeSvg(shape, colour.name().toStdString(), strokeWidth);
    }
    return document + "</svg>\n";
}

} // namespace samplelibrary
