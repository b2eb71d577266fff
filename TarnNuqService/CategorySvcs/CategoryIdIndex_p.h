#pragma once

#include <QList>
#include <vector>

namespace tarnnuq {

class ICategory;

/// Finds categories by their ids; of several with one id the first in list order. Good until the list changes.
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
};

} // namespace tarnnuq
