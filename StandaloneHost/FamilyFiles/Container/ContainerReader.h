#pragma once

#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct zip;

namespace familyfiles {

/// The archive of a family file, read in memory. All names are good and different; what entries hold is checked when it
/// is read.
class ContainerReader
{
public:
    static constexpr const char* ManifestName = "manifest.json";

    /// Opens an archive.
    /// @return null with a reason: container.not-a-container, .damaged, .encrypted, .bad-entry-name, .duplicate-entry,
    ///         .too-many-entries
    static std::unique_ptr<ContainerReader> Open(std::string bytes, Reason& reason);

    ~ContainerReader();
    ContainerReader(const ContainerReader&) = delete;
    ContainerReader& operator=(const ContainerReader&) = delete;

    /// In the archive's order.
    const std::vector<std::string>& Names() const { return m_names; }

    /// The bytes of one entry, whatever size the archive declares for it.
    /// @return nothing with a reason: container.missing-entry (.missing-manifest), .entry-too-large, .damaged
    std::optional<std::string> Read(std::string_view name, std::size_t maximalSize, Reason& reason) const;

private:
    struct Closer
    {
        void operator()(zip* archive) const;
    };

    explicit ContainerReader(std::string bytes) : m_bytes(std::move(bytes)) {}
    bool OpenArchive(Reason& reason);
    bool ReadNames(Reason& reason);
    bool ReadName(std::size_t index, Reason& reason);

    std::string m_bytes;
    std::unique_ptr<zip, Closer> m_archive;
    std::vector<std::string> m_names;
};

} // namespace familyfiles
