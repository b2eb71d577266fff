#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace nuq {

/**
 * Let Qt find its plug-ins for further picture formats, and no others: those for the network only ask the desktop
 * whether there is one. Before the first request.
 */
void AllowPicturePlugins();

/**
 * The picture format that a file name asks for by its suffix, as Qt names it; "png" without a suffix. Empty when such a
 * picture cannot be written.
 */
QByteArray WrittenFormat(const QString& fileName);

/** The formats that can be written, for a sentence. */
QString WrittenFormats();

/** A picture as the content of a file. Empty when it cannot be written in this format. */
QByteArray PictureBytes(const QImage& image, const QByteArray& format);

/** Write a file as a whole: it is there with all its bytes, or as it was. @return why not; empty on success */
QString WriteWholeFile(const QString& path, const QByteArray& bytes);

} // namespace nuq
