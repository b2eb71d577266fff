#include "CategorySvcs/CategoryIdIndex_p.h"

#include "Records/ICategory.h"

#include <QRandomGenerator>

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

} // namespace

// One block of memory, at most half full, instead of a node for each id.
CategoryIdIndex::CategoryIdIndex(QList<ICategory>& categories)
    : m_slots(TableSize(categories.size()), Slot{0, nullptr}),
      m_multiplier(QRandomGenerator::global()->generate64() | 1U)
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
    // The upper bits of the product depend on all bits of the id.
    auto slot = static_cast<std::size_t>((static_cast<std::uint32_t>(id) * m_multiplier) >> 32) & mask;
    while (m_slots[slot].category && m_slots[slot].id != id) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

} // namespace tarnnuq
