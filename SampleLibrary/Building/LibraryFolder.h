#pragma once

#include <QLockFile>
#include <QString>
#include <string>

namespace samplelibrary {

/// A library folder that appears as a whole or not at all.
///
/// A new library grows in a folder beside the old one and takes its place at the end. A folder that is neither empty
/// nor holds a library is never touched.
class LibraryFolder
{
public:
    /// @param path where the library is to stand; folders above it are made as needed
    explicit LibraryFolder(const QString& path);

    /// Removes what a build that did not get to Publish() has left.
    ~LibraryFolder();

    LibraryFolder(const LibraryFolder&) = delete;
    LibraryFolder& operator=(const LibraryFolder&) = delete;

    /// Whether a complete library with this digest stands here.
    bool IsUpToDate(const std::string& sourceDigest) const;

    /// Makes the empty folder in which the new library grows and gives its path. Throws BuildError when the place is
    /// taken by something else, cannot be written, or another builder is at work on it.
    QString Begin();

    /// Puts the new library in place. @p description is the text of library.json, the file whose presence says
    /// "complete". Throws BuildError; the old library then stays.
    void Publish(const std::string& description);

    /// The path without a trailing slash.
    const QString& Path() const { return m_path; }

private:
    void CheckPlace() const;
    void Lock();
    QString Aside() const;
    void RemoveGrowing() const;
    void RestoreOld() const;
    void SetOldAside() const;
    void RemoveAside() const;

    QString m_path;
    QString m_growing;
    QLockFile m_lock;
};

} // namespace samplelibrary
