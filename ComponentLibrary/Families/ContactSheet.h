#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace componentlibrary {

/** One picture of a contact sheet and what stands below it. */
struct SheetPicture
{
    QImage picture;
    QString label;
};

/**
 * Pictures side by side on one sheet, to be looked at together.
 *
 * Labels are drawn with letters of this program's own, so that the same pictures give the same sheet on every machine,
 * without fonts and without a display; what is not ASCII becomes a box, what does not fit is cut.
 */
struct ContactSheet
{
    int columns = 8;
    int cell = 128;      ///< pixels of a picture's side; larger ones are made smaller, smaller ones centred
    bool isDark = false; ///< pictures are transparent: on which ground they are looked at

    QImage Draw(const std::vector<SheetPicture>& pictures) const;
};

} // namespace componentlibrary
