#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One entry of an archive that is put together byte by byte, so that it can be wrong in every way.
struct RawEntry
{
    std::string name;
    std::string content;
    bool isDeflated = false;
    std::uint16_t flags = 0;
    /// What the archive says instead of the truth.
    std::optional<std::uint32_t> declaredSize = {};
    std::optional<std::uint32_t> declaredChecksum = {};
    /// Method of compression that is declared.
    std::optional<std::uint16_t> method = {};
};

/// The bytes of an archive of these entries.
std::string RawArchive(const std::vector<RawEntry>& entries);
