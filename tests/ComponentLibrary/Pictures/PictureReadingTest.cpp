#include "Pictures/PictureReading.h"

#include "TarnNuqService/Providers/ImageSample.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

using testsupport::ImageBytes;
using testsupport::PngBomb;
using testsupport::PromisingPng;
using testsupport::SampleImage;

TEST(PictureReading, DecodesAPictureAndTellsItsFormat)
{
    for (const char* format : {"png", "bmp", "ppm"}) {
        const Picture picture = ReadPicture(ImageBytes(SampleImage(), format));
        EXPECT_EQ(picture.fault, PictureFault::None) << format;
        EXPECT_EQ(picture.format, format);
        EXPECT_EQ(picture.image.convertToFormat(QImage::Format_RGB32), SampleImage());
    }
}

TEST(PictureReading, TellsTheFormatByTheContentOfAFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("图 片.png")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ImageBytes(SampleImage(), "BMP"));
    file.close();
    EXPECT_EQ(ReadPictureFile(file.fileName()).format, "bmp");
}

TEST(PictureReading, RefusesWhatIsNoWholePicture)
{
    const QByteArray png = ImageBytes(SampleImage(64, 64));
    for (const QByteArray& bytes : {QByteArray(), QByteArray("<html>"), png.left(20), png.left(png.size() / 2),
             PromisingPng(0, 0), PromisingPng(100, 100)}) {
        const Picture picture = ReadPicture(bytes);
        EXPECT_EQ(picture.fault, PictureFault::Unreadable) << bytes.size() << " bytes";
        EXPECT_TRUE(picture.image.isNull());
    }
}

TEST(PictureReading, RefusesHostileSizesByTheHeaderAlone)
{
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray& bytes : {PromisingPng(50000, 50000), PromisingPng(4096, 4097), PromisingPng(1000000, 17)})
        EXPECT_EQ(ReadPicture(bytes).fault, PictureFault::TooLarge);
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST(PictureReading, DecodesAsManyPixelsAsAreAllowed)
{
    EXPECT_EQ(ReadPicture(PngBomb(4096, 4096)).image.size(), QSize(4096, 4096));
    EXPECT_EQ(ReadPicture(PngBomb(8192, 2049)).fault, PictureFault::TooLarge);
}

TEST(PictureReading, TellsAMissingFileFromOneThatCannotBeRead)
{
    const QTemporaryDir folder;
    EXPECT_EQ(ReadPictureFile(folder.filePath(QStringLiteral("none"))).fault, PictureFault::Missing);
    EXPECT_EQ(ReadPictureFile(folder.path()).fault, PictureFault::Unreadable);
}

TEST(PictureFitting, KeepsProportionsAndNeverEnlarges)
{
    EXPECT_EQ(FitPicture(SampleImage(200, 100), 50).size(), QSize(50, 25));
    EXPECT_EQ(FitPicture(SampleImage(100, 200), 50).size(), QSize(25, 50));
    EXPECT_EQ(FitPicture(SampleImage(30, 40), 50), SampleImage(30, 40));
    EXPECT_EQ(FitPicture(SampleImage(3, 900), 10).size(), QSize(1, 10));
}

} // namespace
} // namespace componentlibrary
