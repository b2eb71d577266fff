#pragma once

#include <QString>

class QImage;
class QPoint;

namespace componentlibrary {

/** Letters of 5 by 7 pixels, one pixel apart. */
constexpr int kLetterHeight = 7;
constexpr int kLetterAdvance = 6;

/**
 * Draws a text into a picture, without fonts, which need a display and differ between machines. Small letters look like
 * capitals; what is neither a letter nor a usual sign of ASCII is a box.
 * @param place of the upper left corner; what lies outside of the picture is left out
 */
void DrawPixelText(QImage& picture, const QPoint& place, const QString& text, unsigned colour);

} // namespace componentlibrary
