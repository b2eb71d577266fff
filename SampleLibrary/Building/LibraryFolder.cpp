#include "Building/LibraryFolder.h"

#include "Building/BuildError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <nlohmann/json.hpp>

namespace samplelibrary {

namespace {

const QString DescriptionName = QStringLiteral("library.json");

/// Marks a folder in which a library grows, so that nothing else is ever taken for the remains of a build.
const QString MarkName = QStringLiteral(".sample-library-growing");

QString Inside(const QString& folder, const QString& name)
{
    return folder + QLatin1Char('/') + name;
}

nlohmann::json ReadDescription(const QString& folder)
{
    QFile file(Inside(folder, DescriptionName));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return nlohmann::json::parse(file.readAll().toStdString(), nullptr, false);
}

bool HoldsLibrary(const QString& folder)
{
    const nlohmann::json description = ReadDescription(folder);
    return description.is_object() && description.contains("sourceDigest") && description.contains("schema");
}

bool IsEmpty(const QString& folder)
{
    return QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

[[noreturn]] void Fail(const QString& sentence)
{
    throw BuildError(sentence.toStdString());
}

void WriteWhole(const QString& path, const std::string& text)
{
    QSaveFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly);
    const bool isWritten =
        isOpen && file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size());
    if (!isWritten || !file.commit()) {
        Fail(QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString()));
    }
}

} // namespace

LibraryFolder::LibraryFolder(const QString& path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath())), m_growing(m_path + QLatin1String(".growing")),
      m_lock(m_path + QLatin1String(".lock"))
{
    // A lock is stale when its process is gone, never merely because a large build takes long.
    m_lock.setStaleLockTime(0);
}

LibraryFolder::~LibraryFolder()
{
    if (m_lock.isLocked()) {
        RemoveGrowing();
    }
}

QString LibraryFolder::Aside() const
{
    return m_path + QLatin1String(".old");
}

bool LibraryFolder::IsUpToDate(const std::string& sourceDigest) const
{
    const nlohmann::json description = ReadDescription(m_path);
    return description.is_object() && description.value("sourceDigest", nlohmann::json()) == sourceDigest &&
           QFileInfo::exists(Inside(m_path, QStringLiteral("catalogue.db"))) &&
           QFileInfo::exists(Inside(m_path, QStringLiteral("components.db")));
}

void LibraryFolder::CheckPlace() const
{
    const QFileInfo place(m_path);
    if (place.exists() && !place.isDir()) {
        Fail(QStringLiteral("%1 is a file, not a folder").arg(m_path));
    }
    if (place.exists() && !IsEmpty(m_path) && !HoldsLibrary(m_path)) {
        Fail(QStringLiteral("%1 is not empty and holds no sample library; choose another folder").arg(m_path));
    }
}

void LibraryFolder::Lock()
{
    if (m_lock.tryLock(0)) {
        return;
    }
    if (m_lock.error() == QLockFile::LockFailedError) {
        Fail(QStringLiteral("another builder is at work on %1").arg(m_path));
    }
    Fail(QStringLiteral("%1 cannot be written").arg(QFileInfo(m_path).path()));
}

void LibraryFolder::RemoveGrowing() const
{
    if (QFileInfo::exists(Inside(m_growing, MarkName)) || HoldsLibrary(m_growing)) {
        QDir(m_growing).removeRecursively();
    }
}

void LibraryFolder::RestoreOld() const
{
    // A builder that was killed between its two renamings has left the old library aside.
    if (!QFileInfo::exists(m_path) && HoldsLibrary(Aside())) {
        QDir().rename(Aside(), m_path);
    }
    RemoveAside();
}

QString LibraryFolder::Begin()
{
    CheckPlace();
    const QString above = QFileInfo(m_path).path();
    if (!QDir().mkpath(above)) {
        Fail(QStringLiteral("the folder %1 cannot be made").arg(above));
    }
    Lock();
    RemoveGrowing();
    RestoreOld();
    if (!QDir().mkdir(m_growing)) {
        Fail(QStringLiteral("the folder %1 cannot be made").arg(m_growing));
    }
    WriteWhole(Inside(m_growing, MarkName), std::string());
    return m_growing;
}

void LibraryFolder::SetOldAside() const
{
    // Removes an empty folder and nothing else.
    QDir().rmdir(m_path);
    if (QFileInfo::exists(m_path) && !QDir().rename(m_path, Aside())) {
        Fail(QStringLiteral("the old library in %1 cannot be replaced").arg(m_path));
    }
}

void LibraryFolder::RemoveAside() const
{
    if (HoldsLibrary(Aside())) {
        // Without its description what is left of it will never be taken for a complete library.
        QFile::remove(Inside(Aside(), DescriptionName));
        WriteWhole(Inside(Aside(), MarkName), std::string());
    }
    if (QFileInfo::exists(Inside(Aside(), MarkName))) {
        QDir(Aside()).removeRecursively();
    }
    QDir().rmdir(Aside());
}

void LibraryFolder::Publish(const std::string& description)
{
    WriteWhole(Inside(m_growing, DescriptionName), description);
    QFile::remove(Inside(m_growing, MarkName));
    SetOldAside();
    if (!QDir().rename(m_growing, m_path)) {
        QDir().rename(Aside(), m_path);
        Fail(QStringLiteral("%1 cannot be renamed to %2").arg(m_growing, m_path));
    }
    RemoveAside();
}

} // namespace samplelibrary
