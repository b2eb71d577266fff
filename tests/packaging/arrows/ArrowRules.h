#pragma once

#include <istream>
#include <map>
#include <set>
#include <string>

namespace arrows {

/// What each room may include, as the table packaging/include-arrows.txt has it.
class ArrowRules
{
public:
    /// Reads the table: one line "room : word word ..." each, '#' starts a comment line.
    /// @throws std::runtime_error for a line of another form or a room that stands there twice.
    static ArrowRules Read(std::istream& table);

    bool Knows(const std::string& room) const;

    /// The rooms of the table, in alphabetical order.
    std::set<std::string> Rooms() const;

    /// Whether `room` may include a header of `kind` (a word of the table: std, libraries, a Qt module, a room);
    /// `path` is the header's path within that room, empty for the other kinds.
    bool Allows(const std::string& room, const std::string& kind, const std::string& path = {}) const;

private:
    std::map<std::string, std::set<std::string>> m_words;
};

} // namespace arrows
