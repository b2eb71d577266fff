#pragma once

#include "FamilyFiles/Reason.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// The archive of a family file, read in memory. All names are good and different; what entries hold is checked when it
/// is read.
class ContainerReader
{
public:
    static constexpr const char* ManifestName = "manifest.json";

    /// Opens an archive.
    /// @return null with a reason: container.not-a-container, .damaged, .encrypted, .bad-entry-name, .duplicate-entry,
    ///         .too-many-entries, or why no archive can be opened
    static std::unique_ptr<ContainerReader> Open(std::string bytes, Reason& reason);

    virtual ~ContainerReader() = default;
    ContainerReader(const ContainerReader&) = delete;
    ContainerReader& operator=(const ContainerReader&) = delete;

    /// In the archive's order.
    virtual const std::vector<std::string>& Names() const = 0;

    /// The bytes of one entry, whatever size the archive declares for it.
    /// @return nothing with a reason: container.missing-entry (.missing-manifest), .entry-too-large, .damaged
    virtual std::optional<std::string> Read(std::string_view name, std::size_t maximalSize, Reason& reason) const = 0;

protected:
    ContainerReader() = default;
};

} // namespace familyfiles
