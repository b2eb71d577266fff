#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

class QIODevice;

namespace componentlibrary {

/** What became of reading a picture. */
enum class PictureFault
{
    None,
    Missing,    ///< there is no such file
    Unreadable, ///< the bytes are no picture that can be decoded to its end
    TooLarge    ///< it promises more pixels than are decoded
};

/** A decoded picture, or why there is none. */
struct Picture
{
    QImage image;      ///< null when there is a fault
    QByteArray format; ///< as Qt names it, for example "png"; told from the content
    PictureFault fault = PictureFault::None;
};

/**
 * The most pixels that are decoded: 4096 times 4096, which take 64 MB. The size is read from the header first, so that
 * a few bytes that promise gigabytes cost nothing.
 */
inline constexpr qint64 kMostPixels = qint64{4096} * 4096;

/** Decode a picture from a device that can seek. May run on any thread. */
Picture ReadPicture(QIODevice& device);

/** Decode a picture from memory. May run on any thread. */
Picture ReadPicture(const QByteArray& bytes);

/** Decode a picture from a file. May run on any thread. */
Picture ReadPictureFile(const QString& path);

/** The picture itself when neither side is longer than `longestSide`, else a smaller one of the same proportions. */
QImage FitPicture(const QImage& image, int longestSide);

} // namespace componentlibrary
