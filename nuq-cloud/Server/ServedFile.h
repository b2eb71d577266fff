#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <tuple>

namespace nuqcloud {

/// A file that was opened once: whatever takes its name meanwhile, size and bytes stay those of one file.
/// Safe for many threads.
class ServedFile
{
public:
    /// What tells a file from the one that had its name before, and from itself before a change.
    using Identity =
        std::tuple<std::uint64_t, std::uint64_t, std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::uint64_t>;

    /// @return null when there is no regular file that can be read
    static std::shared_ptr<const ServedFile> Open(const std::filesystem::path& path);

    ~ServedFile();
    ServedFile(const ServedFile&) = delete;
    ServedFile& operator=(const ServedFile&) = delete;

    std::size_t Size() const { return m_size; }
    const Identity& WhichOne() const { return m_identity; }

    /// Reads up to `count` bytes; fewer only where the file was cut meanwhile.
    std::string Read(std::size_t offset, std::size_t count) const;

private:
    explicit ServedFile(int descriptor) : m_descriptor(descriptor) {}
    bool IsRegular();

    const int m_descriptor;
    std::size_t m_size = 0;
    Identity m_identity;
};

} // namespace nuqcloud
