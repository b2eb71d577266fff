#pragma once

#include <QByteArray>
#include <QString>

namespace componentlibrary {

/** How much lies in a cache, or was taken out of it. */
struct CacheUsage
{
    int files = 0;
    qint64 bytes = 0;
};

/**
 * The thumbnails on disk: the very files that the library's image providers read and write, kept small and whole.
 *
 * Where they lie is the host's choice. Only files whose names begin with a SHA-256 in hexadecimal digits are ever
 * counted or removed, so that a folder that holds other things loses none of them. Several processes may use one cache:
 * files are replaced as a whole, and one that another process removes is simply fetched again. A value; FileOf() and
 * Folder() ask the host and belong to the main thread, the rest may run on any thread.
 */
class ThumbnailCache
{
public:
    static constexpr qint64 kLimit = qint64{256} << 20;

    /** @param limit bytes that Trim() leaves at most */
    explicit ThumbnailCache(qint64 limit = kLimit);

    qint64 Limit() const { return m_limit; }

    /** The folder that the host keeps thumbnails in, without a slash at its end. */
    const QString& Folder() const { return m_folder; }

    /** The file for the picture of a URL. */
    static QString FileOf(const QString& url);

    /**
     * Put a picture into its file. What cannot be written is not kept.
     * @return whether the file holds the bytes now
     */
    static bool Keep(const QString& file, const QByteArray& bytes);

    /** Note that a file was used just now, so that Trim() takes it last. */
    static void NoteUse(const QString& file);

    CacheUsage Measure() const;

    /** Remove all thumbnails. @return what was removed */
    CacheUsage Clear() const;

    /**
     * Where the cache is larger than its limit, remove the files that were not used for longest until it is an eighth
     * below it; and remove what writers that died an hour ago or earlier have left.
     * @return what was removed
     */
    CacheUsage Trim() const;

private:
    qint64 m_limit;
    QString m_folder;
};

} // namespace componentlibrary
