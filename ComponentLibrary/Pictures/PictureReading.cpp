#include "Pictures/PictureReading.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace componentlibrary {
namespace {

Picture Failed(PictureFault fault)
{
    Picture picture;
    picture.fault = fault;
    return picture;
}

} // namespace

Picture ReadPicture(QIODevice& device)
{
    QImageReader reader(&device);
    Picture picture;
    picture.format = reader.format();
    const QSize size = reader.size();
    if (size.isEmpty())
        return Failed(PictureFault::Unreadable);
    if (qint64{size.width()} * size.height() > kMostPixels)
        return Failed(PictureFault::TooLarge);
    if (!reader.read(&picture.image))
        return Failed(PictureFault::Unreadable);
    return picture;
}

Picture ReadPicture(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return ReadPicture(buffer);
}

Picture ReadPictureFile(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return Failed(PictureFault::Missing);
    if (!file.open(QIODevice::ReadOnly))
        return Failed(PictureFault::Unreadable);
    return ReadPicture(file);
}

QImage FitPicture(const QImage& image, int longestSide)
{
    if (image.width() <= longestSide && image.height() <= longestSide)
        return image;
    return image.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace componentlibrary
