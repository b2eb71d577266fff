#pragma once

#include "ArrowRules.h"

#include <filesystem>
#include <string>
#include <vector>

namespace arrows {

/// Holds the include lines of a source tree to a table of arrows.
class IncludeChecker
{
public:
    /// @param root  the folder that holds the rooms
    /// @param qtHeaders  the folder that holds QtCore, QtGui, ...
    IncludeChecker(ArrowRules rules, std::filesystem::path root, std::filesystem::path qtHeaders);

    /// One line "file:line: room may not include ..." for each wrong arrow, and one for each folder with sources that
    /// the table does not know; sorted. Empty when all is well.
    std::vector<std::string> Faults() const;

    /// How many sources and headers the table's rooms hold: a check of nothing proves nothing.
    std::size_t CountFiles() const;

private:
    struct Include
    {
        std::string name;
        std::filesystem::path file;
        std::size_t line;
    };

    std::vector<std::string> RoomsWithoutRule() const;
    std::vector<Include> IncludesOf(const std::filesystem::path& file) const;
    bool IsAllowed(const std::string& room, const Include& include) const;
    bool IsAllowedRoomHeader(const std::string& room, const std::string& owner, const std::string& path) const;
    std::vector<std::string> OwnersOf(const std::string& room, const Include& include) const;
    std::string KindOf(const std::string& name) const;
    std::string QtModuleOf(const std::string& name) const;

    ArrowRules m_rules;
    std::filesystem::path m_root;
    std::filesystem::path m_qtHeaders;
};

} // namespace arrows
