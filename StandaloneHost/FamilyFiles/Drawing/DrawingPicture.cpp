#include "FamilyFiles/Drawing/DrawingPicture.h"

#include "FamilyFiles/Drawing/DrawingStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace familyfiles {

namespace {

/// Lines thinner than this many pixels would fade away in small pictures.
constexpr double kThinnest = 0.8;

QPen PenOf(LineStyle style, int pixels)
{
    const StyleLook& look = LookOf(style);
    QPen pen(QColor(QLatin1String(look.colour)), std::max(look.width * pixels, kThinnest));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    if (look.dashes[0] != 0) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({look.dashes[0], look.dashes[1], look.dashes[2], look.dashes[3]});
    }
    return pen;
}

QPainterPath PathOf(const Drawing& drawing, LineStyle style, int pixels)
{
    const DrawingSquare square = SquareOf(drawing);
    const double scale = pixels / square.side;
    QPainterPath path;
    for (const DrawingPath& line : drawing.paths) {
        if (line.style != style) {
            continue;
        }
        bool isFirst = true;
        for (const Point2& point : line.points) {
            const QPointF place((point.u - square.low.u) * scale, pixels - (point.v - square.low.v) * scale);
            isFirst ? path.moveTo(place) : path.lineTo(place);
            isFirst = false;
        }
    }
    return path;
}

} // namespace

QImage DrawingPicture(const Drawing& drawing, int pixels)
{
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const LineStyle style : kLineStyles) {
        painter.setPen(PenOf(style, pixels));
        painter.drawPath(PathOf(drawing, style, pixels));
    }
    painter.end();
    return picture;
}

} // namespace familyfiles
