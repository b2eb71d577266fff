#pragma once

#include <QString>
#include <memory>

namespace standalone {

/// A lock between processes (and between objects in one process) by a file beside what it protects.
///
/// On Unix the system holds the lock and lets go of it with the process, however that ends. QLockFile, used
/// elsewhere, keeps a lock file's owner inside the file; a process killed between making and filling it would
/// there keep all others out for half a minute.
///
/// One object belongs to one thread at a time.
class FileLock
{
public:
    /// @param path the lock file; made when the lock is taken, removed when it is released. Its folder must exist.
    explicit FileLock(const QString& path);
    /// Releases the lock.
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Takes the lock, waiting for another holder to release it.
    /// @param waitMs how long to wait at most, in milliseconds
    /// @return false when it is still held then, or when the lock file cannot be made
    bool TryLock(int waitMs);

private:
    class Holder;

    QString m_path;
    std::unique_ptr<Holder> m_holder;
};

} // namespace standalone
