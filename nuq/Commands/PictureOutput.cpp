#include "Commands/PictureOutput.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QLibraryInfo>
#include <QSaveFile>

namespace nuq {

void AllowPicturePlugins()
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::PluginsPath);
    QCoreApplication::addLibraryPath(folder);
    // Looked for once and then known for good, so that nothing else finds plug-ins there.
    QImageReader::supportedImageFormats();
    QCoreApplication::removeLibraryPath(folder);
}

QByteArray WrittenFormat(const QString& fileName)
{
    const QByteArray suffix = QFileInfo(fileName).suffix().toLower().toUtf8();
    if (suffix.isEmpty())
        return "png";
    return QImageWriter::supportedImageFormats().contains(suffix) ? suffix : QByteArray();
}

QString WrittenFormats()
{
    return QString::fromLatin1(QImageWriter::supportedImageFormats().join(", "));
}

QByteArray PictureBytes(const QImage& image, const QByteArray& format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return QImageWriter(&buffer, format).write(image) ? buffer.data() : QByteArray();
}

QString WriteWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    // Not every device can be replaced as a whole: /dev/null is written to.
    file.setDirectWriteFallback(true);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isWritten && file.commit() ? QString() : file.errorString();
}

} // namespace nuq
