#include "ArrowRules.h"

#include <sstream>
#include <stdexcept>

namespace arrows {

namespace {

bool IsBlankOrComment(const std::string& line)
{
    const auto first = line.find_first_not_of(" \t");
    return first == std::string::npos || line[first] == '#';
}

bool StartsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

} // namespace

ArrowRules ArrowRules::Read(std::istream& table)
{
    ArrowRules rules;
    std::string line;
    while (std::getline(table, line)) {
        if (IsBlankOrComment(line)) {
            continue;
        }
        std::istringstream words(line);
        std::string room;
        std::string colon;
        words >> room >> colon;
        if (colon != ":" || rules.Knows(room)) {
            throw std::runtime_error("bad line in the table of arrows: " + line);
        }
        auto& allowed = rules.m_words[room];
        for (std::string word; words >> word;) {
            allowed.insert(word);
        }
    }
    return rules;
}

bool ArrowRules::Knows(const std::string& room) const
{
    return m_words.count(room) != 0;
}

std::set<std::string> ArrowRules::Rooms() const
{
    std::set<std::string> rooms;
    for (const auto& [room, words] : m_words) {
        rooms.insert(room);
    }
    return rooms;
}

bool ArrowRules::Allows(const std::string& room, const std::string& kind, const std::string& path) const
{
    const auto& words = m_words.at(room);
    if (words.count("anything") != 0 || words.count(kind) != 0) {
        return true;
    }
    if (StartsWith(kind, "Qt") && words.count("Qt") != 0) {
        return true;
    }
    for (const std::string& word : words) {
        if (StartsWith(kind + '/' + path, word + '/')) {
            return true;
        }
    }
    return false;
}

} // namespace arrows
