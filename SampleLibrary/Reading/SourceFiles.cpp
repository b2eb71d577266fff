#include "Reading/SourceFiles.h"

#include "BuilderRevision.h"
#include "Reading/SourceError.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <algorithm>
#include <utility>

// Resources of a static library are not found unless something refers to them; the macro wants no namespace around it.
static void UseCompiledInFiles()
{
    Q_INIT_RESOURCE(SampleLibrarySource);
}

namespace samplelibrary {

namespace {

std::string Relative(const QString& root, const QString& path)
{
    return QDir(root).relativeFilePath(path).toStdString();
}

std::vector<std::string> Listed(const QString& root, const QString& folder, QDirIterator::IteratorFlags flags)
{
    std::vector<std::string> names;
    QDirIterator files(folder, QDir::Files, flags);
    while (files.hasNext()) {
        names.push_back(Relative(root, files.next()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

SourceFiles::SourceFiles() : SourceFiles(QStringLiteral(":/sample-library")) {}

SourceFiles::SourceFiles(QString root) : m_root(std::move(root))
{
    UseCompiledInFiles();
}

std::string SourceFiles::Text(const std::string& name) const
{
    QFile file(m_root + QLatin1Char('/') + QString::fromStdString(name));
    if (!file.open(QIODevice::ReadOnly)) {
        throw SourceError(name, "cannot be read, " + file.errorString().toStdString());
    }
    return file.readAll().toStdString();
}

std::vector<std::string> SourceFiles::Names(const std::string& folder) const
{
    return Listed(m_root, m_root + QLatin1Char('/') + QString::fromStdString(folder), QDirIterator::NoIteratorFlags);
}

std::string SourceFiles::Digest() const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(BuilderRevision, static_cast<int>(sizeof(BuilderRevision)));
    for (const std::string& name : Listed(m_root, m_root, QDirIterator::Subdirectories)) {
        const std::string text = Text(name);
        std::string entry = name;
        entry.append(1, '\0').append(std::to_string(text.size())).append(1, '\0').append(text);
        hash.addData(QByteArray::fromStdString(entry));
    }
    return hash.result().toHex().toStdString();
}

} // namespace samplelibrary
