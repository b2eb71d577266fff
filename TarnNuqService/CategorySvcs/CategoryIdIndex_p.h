#pragma once

#include <QList>
#include <cstdint>
#include <vector>

namespace tarnnuq {

class ICategory;

/// Finds categories by their ids; of several with one id the first in list order. Good until the list changes.
///
/// Ids come from outside: the hash is another one in each index, so that no list of ids is bad for all.
class CategoryIdIndex
{
public:
    /// @param categories the list to index; pointers into it are kept
    explicit CategoryIdIndex(QList<ICategory>& categories);

    /// @return the first category with that id, or null
    ICategory* Find(int id) const;

private:
    struct Slot
    {
        int id;
        ICategory* category;
    };

    std::size_t Probe(int id) const;

    std::vector<Slot> m_slots;
    std::uint64_t m_multiplier;
};

} // namespace tarnnuq
