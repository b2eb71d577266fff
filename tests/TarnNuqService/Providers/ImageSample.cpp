#include "TarnNuqService/Providers/ImageSample.h"

#include <QBuffer>
#include <QtEndian>
#include <gtest/gtest.h>

namespace testsupport {

namespace {

quint32 Crc(const QByteArray& bytes)
{
    quint32 crc = 0xffffffffU;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
        }
    }
    return ~crc;
}

QByteArray BigEndian(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& typeAndData)
{
    return BigEndian(static_cast<quint32>(typeAndData.size() - 4)) + typeAndData + BigEndian(Crc(typeAndData));
}

} // namespace

QImage SampleImage(int width, int height, int seed)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb((x * 37 + seed * 11) & 0xff, (y * 53 + seed * 29) & 0xff, (x * y + seed) & 0xff));
        }
    }
    return image;
}

QByteArray ImageBytes(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return buffer.data();
}

QByteArray PromisingPng(quint32 width, quint32 height)
{
    const QByteArray eightBitRgba("\x08\x06\x00\x00\x00", 5);
    // The length in front of what qCompress() gives is not part of a PNG.
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + Chunk("IHDR" + BigEndian(width) + BigEndian(height) + eightBitRgba) +
           Chunk("IDAT" + qCompress(QByteArray(64, '\0')).mid(4)) + Chunk("IEND");
}

QByteArray PngBomb(int width, int height)
{
    QImage image(width, height, QImage::Format_Grayscale8);
    image.fill(Qt::darkGray);
    return ImageBytes(image);
}

} // namespace testsupport
