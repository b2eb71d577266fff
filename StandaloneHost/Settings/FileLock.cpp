#include "Settings/FileLock.h"

#include <QFile>
#include <QLockFile>

#ifdef Q_OS_UNIX
#include <QElapsedTimer>
#include <QThread>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#endif

namespace standalone {

#ifdef Q_OS_UNIX

/// An open lock file, removed and closed at the end.
class FileLock::Holder
{
public:
    Holder(int descriptor, QByteArray path) : m_descriptor(descriptor), m_path(std::move(path)) {}
    ~Holder()
    {
        // Removed while it is locked: who waits for it sees that it is gone and makes a new one.
        ::unlink(m_path.constData());
        ::close(m_descriptor);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

private:
    int m_descriptor;
    QByteArray m_path;
};

namespace {

constexpr unsigned long kPauseMs = 2;

/// Whether the path still leads to the open file, which an earlier holder may have removed meanwhile.
bool IsSameFile(int descriptor, const char* path)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::stat(path, &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

enum class Attempt
{
    Locked,
    Busy,
    Failed
};

Attempt LockOnce(const QByteArray& path, int& descriptor)
{
    descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0) {
        return Attempt::Failed;
    }
    const bool isLocked = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    const bool isBusy = isLocked || errno == EWOULDBLOCK || errno == EINTR;
    if (isLocked && IsSameFile(descriptor, path.constData())) {
        return Attempt::Locked;
    }
    ::close(descriptor);
    return isBusy ? Attempt::Busy : Attempt::Failed;
}

} // namespace

bool FileLock::TryLock(int waitMs)
{
    const QByteArray path = QFile::encodeName(m_path);
    QElapsedTimer clock;
    clock.start();
    int descriptor = -1;
    Attempt attempt = LockOnce(path, descriptor);
    while (attempt == Attempt::Busy && clock.elapsed() < waitMs) {
        QThread::msleep(kPauseMs);
        attempt = LockOnce(path, descriptor);
    }
    if (attempt == Attempt::Locked) {
        m_holder = std::make_unique<Holder>(descriptor, path);
    }
    return attempt == Attempt::Locked;
}

#else

class FileLock::Holder
{
public:
    explicit Holder(const QString& path) : m_file(path) {}
    bool TryLock(int waitMs) { return m_file.tryLock(waitMs); }

private:
    QLockFile m_file;
};

bool FileLock::TryLock(int waitMs)
{
    m_holder = std::make_unique<Holder>(m_path);
    return m_holder->TryLock(waitMs);
}

#endif

FileLock::FileLock(const QString& path) : m_path(path) {}

FileLock::~FileLock() = default;

} // namespace standalone
