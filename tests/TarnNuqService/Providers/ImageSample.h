#pragma once

#include <QByteArray>
#include <QImage>

namespace testsupport {

/// A small image in which every pixel differs from its neighbours.
/// @param seed other seeds give other images
QImage SampleImage(int width = 24, int height = 16, int seed = 0);

/// The file of an image.
/// @param format as Qt names it, such as "PNG"
QByteArray ImageBytes(const QImage& image, const char* format = "PNG");

/// A well-formed PNG header that promises 32-bit pixels, and hardly any of them behind it.
QByteArray PromisingPng(quint32 width, quint32 height);

/// A whole PNG of one colour: very few bytes, very many pixels.
QByteArray PngBomb(int width, int height);

} // namespace testsupport
