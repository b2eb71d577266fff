#pragma once

#include "FamilyFiles/FamilyFileContent.h"
#include "FamilyFiles/Reason.h"

#include <optional>
#include <string>

namespace familyfiles {

/// Writes family files: the manifest first, then the other entries in the order given; the same bytes for the same
/// content on every machine and at every time.
class FamilyFileWriter
{
public:
    /// The file's bytes.
    /// @return nothing with a reason when a reader would refuse it: container.bad-entry-name, .duplicate-entry,
    ///         .too-many-entries, .entry-too-large, or manifest.… of ReadManifest
    static std::optional<std::string> Bytes(const FamilyFileContent& content, Reason& reason);

    /// Writes the file as a whole: a reader sees the old file or the new one, also when the disk is full or the program
    /// dies on the way; on failure the old file stands as it was and nothing else is left behind.
    /// @param path UTF-8; its folder must exist
    /// @return false with a reason: file.not-written, or as above
    static bool Write(const std::string& path, const FamilyFileContent& content, Reason& reason);
};

} // namespace familyfiles
