#pragma once

#include "Server/ServedFile.h"

#include <map>
#include <mutex>
#include <string>

namespace nuqcloud {

/// The SHA-256 of files' contents, worked out once for each state of a file. The same bytes have the same digest
/// wherever and whenever they were written, so that a library that was built anew does not make clients start again.
/// Safe for many threads.
class ContentDigests
{
public:
    /// @param name under which the digest is kept
    /// @return the 32 bytes of the digest
    /// @throws std::runtime_error when the file cannot be read to its end
    std::string Of(const std::string& name, const ServedFile& file);

private:
    struct Entry
    {
        ServedFile::Identity identity;
        std::string digest;
    };

    std::mutex m_mutex;
    std::map<std::string, Entry> m_entries;
};

} // namespace nuqcloud
