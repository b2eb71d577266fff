#include "Families/ContactSheet.h"

#include "Families/PixelLetters_p.h"

#include <QPainter>

#include <algorithm>

namespace componentlibrary {
namespace {

constexpr int kMargin = 6;
constexpr int kCaption = kLetterHeight + 5;

/// The picture no larger than the cell, not made larger: its pixels are what programs show.
QImage Fitted(const QImage& picture, int cell)
{
    if (picture.width() <= cell && picture.height() <= cell)
        return picture;
    return picture.scaled(cell, cell, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QString Cut(const QString& label, int width)
{
    return label.left(width / kLetterAdvance);
}

} // namespace

QImage ContactSheet::Draw(const std::vector<SheetPicture>& pictures) const
{
    const int count = static_cast<int>(pictures.size());
    const int across = std::max(1, std::min(columns, count));
    const int down = (count + across - 1) / across;
    const int stepX = cell + kMargin;
    const int stepY = cell + kCaption + kMargin;
    QImage sheet(across * stepX + kMargin, down * stepY + kMargin, QImage::Format_RGB32);
    sheet.fill(isDark ? qRgb(0x1E, 0x1E, 0x1E) : qRgb(0xFF, 0xFF, 0xFF));
    const unsigned ink = isDark ? qRgb(0xD0, 0xD0, 0xD0) : qRgb(0x40, 0x40, 0x40);
    for (int index = 0; index < count; ++index) {
        const SheetPicture& one = pictures[static_cast<std::size_t>(index)];
        const QPoint corner(kMargin + index % across * stepX, kMargin + index / across * stepY);
        const QImage fitted = Fitted(one.picture, cell);
        const QPoint centred((cell - fitted.width()) / 2, (cell - fitted.height()) / 2);
        QPainter(&sheet).drawImage(corner + centred, fitted);
        const QString label = Cut(one.label, cell);
        const int indent = (cell - label.size() * kLetterAdvance) / 2;
        DrawPixelText(sheet, corner + QPoint(indent, cell + 4), label, ink);
    }
    return sheet;
}

} // namespace componentlibrary
