#include "support/TestFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

TestFolder::TestFolder()
{
    QDir().mkpath(Path());
}

QString TestFolder::Path() const
{
    return m_folder.path() + QStringLiteral("/风管 folder");
}

QString TestFolder::Path(const QString& relative) const
{
    return Path() + QLatin1Char('/') + relative;
}

QString TestFolder::Write(const QString& relative, const QByteArray& content) const
{
    QString path = Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

QByteArray TestFolder::Read(const QString& relative) const
{
    QFile file(Path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

QStringList TestFolder::Files() const
{
    QStringList files;
    QDirIterator walk(Path(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files += QDir(Path()).relativeFilePath(walk.next());
    }
    files.sort();
    return files;
}

QStringList TestFolder::FilesWith(const QByteArray& bytes) const
{
    QStringList found;
    for (const QString& file : Files()) {
        if (Read(file).contains(bytes)) {
            found += file;
        }
    }
    return found;
}
