#include "Catalogue/SearchIndex.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace nuqcloud {

void SearchIndex::Add(std::string_view searchText)
{
    m_begins.push_back(m_texts.size());
    m_texts += searchText;
    m_texts.push_back('\0');
}

std::string_view SearchIndex::TextAt(std::size_t position) const
{
    const std::size_t end = position + 1 < m_begins.size() ? m_begins[position + 1] : m_texts.size();
    return std::string_view(m_texts).substr(m_begins[position], end - m_begins[position]);
}

std::vector<std::uint32_t> SearchIndex::FindWord(std::string_view word) const
{
    std::vector<std::uint32_t> found;
    const char* const end = m_texts.data() + m_texts.size();
    const char* from = m_texts.data();
    while (const void* hit = ::memmem(from, static_cast<std::size_t>(end - from), word.data(), word.size())) {
        const auto offset = static_cast<std::size_t>(static_cast<const char*>(hit) - m_texts.data());
        const auto next = std::upper_bound(m_begins.begin(), m_begins.end(), offset);
        found.push_back(static_cast<std::uint32_t>(next - m_begins.begin() - 1));
        if (next == m_begins.end()) {
            break;
        }
        from = m_texts.data() + *next;
    }
    return found;
}

std::vector<std::uint32_t> SearchIndex::Find(const std::vector<std::string>& words) const
{
    if (words.empty()) {
        std::vector<std::uint32_t> all(m_begins.size());
        std::iota(all.begin(), all.end(), 0U);
        return all;
    }
    std::vector<std::uint32_t> found = FindWord(words.front());
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto misses = [&](std::uint32_t position) {
            return TextAt(position).find(words[i]) == std::string_view::npos;
        };
        found.erase(std::remove_if(found.begin(), found.end(), misses), found.end());
    }
    return found;
}

} // namespace nuqcloud
