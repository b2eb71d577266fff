#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace tarnnuq {

/// One entry of a map that the host filled. Points into that map.
template <typename Info>
struct HostEntry
{
    const std::wstring* key; ///< The host's own key.
    const Info* info;        ///< The host's object; may be null.
    int sortIndex;           ///< Its position in its level; 0 without an object.
};

/// Puts the entries of a host's map into the order in which they are shown: by sort index, ascending, each object asked
/// for its index once. Entries with one index stand in no order to rely on; those without an object come last.
/// @param entries the host's map; has to outlive the result
template <typename Info>
std::vector<HostEntry<Info>> BySortIndex(const std::map<std::wstring, const Info*>& entries)
{
    std::vector<HostEntry<Info>> sorted;
    sorted.reserve(entries.size());
    for (const auto& [key, info] : entries) {
        if (info) {
            sorted.push_back({&key, info, info->GetSortIndex()});
        }
    }
    std::stable_sort(sorted.begin(), sorted.end(),
        [](const HostEntry<Info>& a, const HostEntry<Info>& b) { return a.sortIndex < b.sortIndex; });
    // Compared with others, an entry without an object would be before and behind each of them.
    for (const auto& [key, info] : entries) {
        if (!info) {
            sorted.push_back({&key, nullptr, 0});
        }
    }
    return sorted;
}

} // namespace tarnnuq
