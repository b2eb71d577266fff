#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// The search texts of all components in one piece of memory, so that a keyword costs one pass over it.
class SearchIndex
{
public:
    /// Appends the text of the next position; texts hold no NUL.
    void Add(std::string_view searchText);

    /// Positions, ascending, whose text holds every one of the words. No word matches everything.
    std::vector<std::uint32_t> Find(const std::vector<std::string>& words) const;

private:
    std::string_view TextAt(std::size_t position) const;
    std::vector<std::uint32_t> FindWord(std::string_view word) const;

    std::string m_texts; ///< each followed by a NUL, which no keyword can hold
    std::vector<std::size_t> m_begins;
};

} // namespace nuqcloud
