#include "Server/ServedFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nuqcloud {

std::shared_ptr<const ServedFile> ServedFile::Open(const std::filesystem::path& path)
{
    // Without O_NONBLOCK a pipe of that name would hold the thread for ever.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return nullptr;
    }
    const std::shared_ptr<ServedFile> file(new ServedFile(descriptor));
    return file->IsRegular() ? file : nullptr;
}

ServedFile::~ServedFile()
{
    ::close(m_descriptor);
}

bool ServedFile::IsRegular()
{
    struct stat status = {};
    if (::fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return false;
    }
    m_size = static_cast<std::size_t>(status.st_size);
    // The time of change beside that of the content: the latter can be set to what it was.
    m_identity = {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_ctim.tv_sec,
        status.st_ctim.tv_nsec, m_size};
    return true;
}

std::string ServedFile::Read(std::size_t offset, std::size_t count) const
{
    std::string bytes(count, '\0');
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = ::pread(m_descriptor, bytes.data() + done, count - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    bytes.resize(done);
    return bytes;
}

} // namespace nuqcloud
