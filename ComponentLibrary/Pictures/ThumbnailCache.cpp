#include "Pictures/ThumbnailCache.h"

#include "tarnnuq/PathUtils.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace componentlibrary {
namespace {

constexpr int kHashDigits = 64;
constexpr qint64 kOldestLeftover = 3600; // seconds

bool IsHexDigit(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
}

bool BeginsWithHash(const QString& name)
{
    return name.size() >= kHashDigits && std::all_of(name.begin(), name.begin() + kHashDigits, IsHexDigit);
}

/// A writer that dies leaves a file with one more suffix than the file that it was going to replace.
bool IsLeftover(const QFileInfo& file)
{
    const bool isTemporary = file.fileName().mid(kHashDigits).count(QLatin1Char('.')) > 1;
    return isTemporary && file.lastModified().secsTo(QDateTime::currentDateTimeUtc()) >= kOldestLeftover;
}

QFileInfoList FilesOf(const QString& folder)
{
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks);
    const auto isForeign = [](const QFileInfo& file) { return !BeginsWithHash(file.fileName()); };
    files.erase(std::remove_if(files.begin(), files.end(), isForeign), files.end());
    return files;
}

CacheUsage SizeOf(const QFileInfoList& files)
{
    CacheUsage usage;
    for (const QFileInfo& file : files) {
        ++usage.files;
        usage.bytes += file.size();
    }
    return usage;
}

void Remove(const QFileInfo& file, CacheUsage& removed)
{
    const qint64 size = file.size(); // found out no sooner than it is asked for
    if (QFile::remove(file.filePath())) {
        ++removed.files;
        removed.bytes += size;
    }
}

} // namespace

ThumbnailCache::ThumbnailCache(qint64 limit) : m_limit(limit), m_folder(QFileInfo(FileOf(QString())).path()) {}

QString ThumbnailCache::FileOf(const QString& url)
{
    return QString::fromStdWString(tarnnuq::PathUtils::GetThumbnailDownloadFilePath(url.toStdWString(), L".png"));
}

bool ThumbnailCache::Keep(const QString& file, const QByteArray& bytes)
{
    QSaveFile target(file);
    // Without the flush a write that failed in the buffer would be committed as a cut file.
    return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() && target.flush() &&
           target.commit();
}

void ThumbnailCache::NoteUse(const QString& file)
{
    QFile used(file);
    if (used.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        used.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

CacheUsage ThumbnailCache::Measure() const
{
    return SizeOf(FilesOf(m_folder));
}

CacheUsage ThumbnailCache::Clear() const
{
    CacheUsage removed;
    for (const QFileInfo& file : FilesOf(m_folder))
        Remove(file, removed);
    return removed;
}

CacheUsage ThumbnailCache::Trim() const
{
    CacheUsage removed;
    QFileInfoList files = FilesOf(m_folder);
    const auto kept = std::stable_partition(files.begin(), files.end(), IsLeftover);
    std::for_each(files.begin(), kept, [&removed](const QFileInfo& file) { Remove(file, removed); });
    files.erase(files.begin(), kept);

    qint64 bytes = SizeOf(files).bytes;
    if (bytes <= m_limit)
        return removed;
    std::sort(files.begin(), files.end(),
        [](const QFileInfo& one, const QFileInfo& other) { return one.lastModified() < other.lastModified(); });
    for (auto file = files.cbegin(); file != files.cend() && bytes > m_limit - m_limit / 8; ++file) {
        bytes -= file->size();
        Remove(*file, removed);
    }
    return removed;
}

} // namespace componentlibrary
