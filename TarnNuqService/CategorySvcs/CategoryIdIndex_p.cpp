#include "CategorySvcs/CategoryIdIndex_p.h"

#include "Records/ICategory.h"

#include <cstdint>

namespace tarnnuq {

namespace {

std::size_t TableSize(int count)
{
    std::size_t size = 16;
    while (size < 2 * static_cast<std::size_t>(count)) {
        size *= 2;
    }
    return size;
}

// Ids are often consecutive or multiples of a round number: spread them over the upper bits.
std::size_t Spread(int id)
{
    return static_cast<std::size_t>((static_cast<std::uint32_t>(id) * UINT64_C(0x9E3779B97F4A7C15)) >> 24);
}

} // namespace

// One block of memory, at most half full, instead of a node for each id.
CategoryIdIndex::CategoryIdIndex(QList<ICategory>& categories) : m_slots(TableSize(categories.size()), Slot{0, nullptr})
{
    for (ICategory& category : categories) {
        Slot& slot = m_slots[Probe(category.Id)];
        if (!slot.category) {
            slot = {category.Id, &category};
        }
    }
}

ICategory* CategoryIdIndex::Find(int id) const
{
    return m_slots[Probe(id)].category;
}

std::size_t CategoryIdIndex::Probe(int id) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = Spread(id) & mask;
    while (m_slots[slot].category && m_slots[slot].id != id) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

} // namespace tarnnuq
