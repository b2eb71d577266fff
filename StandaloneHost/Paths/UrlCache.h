#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace standalone {

/// Files that came from URLs: one file a URL in one folder, named by the SHA-256 of the URL, so that one URL always has
/// the same file and no two share one.
///
/// Several processes may use one folder at once: a file is replaced as a whole, so that a reader sees the old content
/// or the new one, and of two writers the later one wins. A writer that dies on the way leaves the old content, and
/// beside it at most a file of another name. Immutable after construction, usable from every thread.
class UrlCache
{
public:
    /// @param folder absolute; made, for its owner only, when the first path is asked for
    explicit UrlCache(const QString& folder);

    /// The folder without a slash at its end.
    const QString& Folder() const;

    /// The file for a URL, and makes its folder. When the folder cannot be made the path is returned all the
    /// same; writing to it then fails.
    /// @param url the URL text as it is requested; not normalised
    /// @param extension the file's extension with or without its dot, may be empty; only ASCII letters, digits,
    ///        dots, '-' and '_' of it are used, so that it cannot lead out of the folder
    QString PathOf(const QString& url, const QString& extension) const;

    /// Keeps what came from a URL in place of what was kept before.
    /// @return why it failed, for a person; empty on success. On failure the old file stands as it was.
    QString Store(const QString& url, const QString& extension, const QByteArray& content) const;

    /// @return what was kept last for a URL; nothing when there is none or it cannot be read
    std::optional<QByteArray> Read(const QString& url, const QString& extension) const;

private:
    QString m_folder;
};

} // namespace standalone
