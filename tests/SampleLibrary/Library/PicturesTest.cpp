#include "support/BuiltLibrary.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QXmlStreamReader>
#include <cmath>
#include <gtest/gtest.h>

namespace {

QString StaticPath(const BuiltLibrary& library, const std::string& path)
{
    return QString::fromStdString(library.Folder() + "/static/" + path);
}

double Linear(double share)
{
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// The colour of the most opaque pixel.
QColor Ink(const QImage& image)
{
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            ink = colour.alpha() > ink.alpha() ? colour : ink;
        }
    }
    return ink;
}

TEST(Pictures, OfComponentsExistInFourSizes)
{
    BuiltLibrary library;
    for (const std::string& sizes : library.Texts("SELECT DISTINCT thumbnail_sizes FROM component")) {
        const nlohmann::json entries = nlohmann::json::parse(sizes);
        ASSERT_EQ(entries.size(), 4U);
        int expected = 64;
        for (const nlohmann::json& entry : entries) {
            ASSERT_EQ(entry.at("size"), std::to_string(expected));
            ASSERT_EQ(entry.at("thumbnails").size(), 1U);
            const QImage image(StaticPath(library, entry.at("thumbnails")[0]));
            ASSERT_EQ(image.size(), QSize(expected, expected)) << entry;
            expected *= 2;
        }
    }
    EXPECT_EQ(library.Count("SELECT count(*) FROM component WHERE instr(thumbnail_sizes, thumbnail) = 0 OR thumbnail "
                            "NOT LIKE '%/128.png'"),
        0);
    EXPECT_EQ(library.Count("SELECT count(DISTINCT thumbnail) FROM component"), 74);
}

TEST(Pictures, OfLegendsExistAsPixelsAndAsVectors)
{
    BuiltLibrary library;
    const std::vector<std::string> paths = library.Texts("SELECT DISTINCT thumbnail FROM legend");
    EXPECT_EQ(paths.size(), 74U * 3U);
    for (const std::string& path : paths) {
        ASSERT_EQ(QImage(StaticPath(library, path)).size(), QSize(256, 256)) << path;
        QFile file(StaticPath(library, path.substr(0, path.size() - 3) + "svg"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        QXmlStreamReader reader(&file);
        int shapes = 0;
        while (!reader.atEnd()) {
            shapes +=
                reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("path") ? 1 : 0;
        }
        ASSERT_FALSE(reader.hasError()) << path << ' ' << reader.errorString().toStdString();
        ASSERT_GT(shapes, 1) << path;
    }
}

TEST(Pictures, AreReadableOnWhiteAndOnBlackWithATransparentGround)
{
    BuiltLibrary library;
    for (const std::string& path : library.Texts("SELECT DISTINCT thumbnail FROM component")) {
        const QImage image(StaticPath(library, path));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << path;
        const QColor ink = Ink(image);
        EXPECT_EQ(ink.alpha(), 255) << path;
        EXPECT_GE(Contrast(ink, Qt::white), 3.0) << path;
        EXPECT_GE(Contrast(ink, QColor(0x20, 0x21, 0x24)), 3.0) << path;
    }
}

TEST(Pictures, OfTwoKindsDiffer)
{
    BuiltLibrary library;
    std::map<QByteArray, std::string> seen;
    for (const std::string& path : library.Texts("SELECT DISTINCT thumbnail FROM component")) {
        QFile file(StaticPath(library, path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(seen.emplace(file.readAll(), path).second) << path;
    }
}

} // namespace
