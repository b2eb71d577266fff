#pragma once

#include "FamilyFiles/FamilyFileContent.h"
#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <string>
#include <vector>

namespace familyfiles {

/// Reads family files. The name of a file says nothing about its kind. Nothing is ever unpacked to disk, no size that a
/// file declares is trusted, and a file that is damaged anywhere in what is read is refused as a whole.
///
/// Reasons: file.not-found, .unreadable, .too-large; container.not-a-container, .damaged, .encrypted, .bad-entry-name,
/// .duplicate-entry, .too-many-entries, .entry-too-large, .missing-manifest, .missing-entry; manifest.… of
/// ReadManifest.
class FamilyFileReader
{
public:
    /// Limits that no real family comes near.
    static constexpr std::size_t MaximalFileSize = 64U << 20U;
    static constexpr std::size_t MaximalEntries = 256;
    static constexpr std::size_t MaximalManifestSize = 8U << 20U;
    static constexpr std::size_t MaximalEntrySize = 32U << 20U;
    static constexpr std::size_t MaximalTotalSize = 128U << 20U;

    /// Only the manifest; quick, as checking a family needs no more.
    /// @param path UTF-8
    static std::optional<FamilyManifest> ReadManifest(const std::string& path, Reason& reason);

    /// Everything.
    static std::optional<FamilyFileContent> Read(const std::string& path, Reason& reason);

    /// The bytes of one entry.
    static std::optional<std::string> ReadEntry(const std::string& path, const std::string& entry, Reason& reason);

    /// The names of all entries in the file's order.
    static std::optional<std::vector<std::string>> ReadEntryNames(const std::string& path, Reason& reason);
};

} // namespace familyfiles
