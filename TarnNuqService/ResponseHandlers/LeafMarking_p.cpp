#include "ResponseHandlers/LeafMarking_p.h"

#include "Records/ICategory.h"

#include <algorithm>
#include <string_view>

namespace tarnnuq {

namespace {

/// A set of texts in one block of memory (open addressing, at most half full): half the time of a node-based set
/// and two allocations instead of one for each text.
class TextSet
{
public:
    explicit TextSet(std::size_t count)
        : m_slots(TableSize(count)), m_used(m_slots.size()), m_stepsLeft(StepsPerText * m_slots.size())
    {
    }

    void Insert(std::wstring_view text)
    {
        const std::size_t slot = Find(text);
        m_slots[slot] = text;
        m_used[slot] = true;
    }

    bool Contains(std::wstring_view text) { return m_used[Find(text)]; }

    /// @return whether the texts share their hashes beyond chance; answers count for nothing then
    bool IsExhausted() const { return m_stepsLeft == 0; }

private:
    static constexpr std::size_t StepsPerText = 8;

    static std::size_t TableSize(std::size_t count)
    {
        std::size_t size = 16;
        while (size < 2 * count) {
            size *= 2;
        }
        return size;
    }

    std::size_t Find(std::wstring_view text)
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = std::hash<std::wstring_view>()(text) & mask;
        while (m_stepsLeft > 0 && m_used[slot] && m_slots[slot] != text) {
            slot = (slot + 1) & mask;
            --m_stepsLeft;
        }
        return slot;
    }

    std::vector<std::wstring_view> m_slots;
    std::vector<bool> m_used;
    std::size_t m_stepsLeft;
};

/// The same questions for texts that were chosen to share their hashes: more work for each, but never a multiple of
/// their number.
class SortedTexts
{
public:
    explicit SortedTexts(const RecordList<ICategory>& categories)
    {
        m_texts.reserve(categories.size());
        for (const auto& category : categories) {
            if (category) {
                m_texts.emplace_back(category->ParentCode);
            }
        }
        std::sort(m_texts.begin(), m_texts.end());
    }

    bool Contains(std::wstring_view text) const { return std::binary_search(m_texts.begin(), m_texts.end(), text); }

private:
    std::vector<std::wstring_view> m_texts;
};

template <typename ParentCodes>
void MarkByParentCodes(const RecordList<ICategory>& categories, ParentCodes& parentCodes)
{
    for (const auto& category : categories) {
        if (!category) {
            return;
        }
        category->SetIsLeaf(!parentCodes.Contains(category->Code));
    }
}

} // namespace

void MarkLeaves(const RecordList<ICategory>& categories)
{
    TextSet parentCodes(categories.size());
    for (const auto& category : categories) {
        if (category) {
            parentCodes.Insert(category->ParentCode);
        }
    }
    MarkByParentCodes(categories, parentCodes);
    if (parentCodes.IsExhausted()) {
        SortedTexts sortedCodes(categories);
        MarkByParentCodes(categories, sortedCodes);
    }
}

} // namespace tarnnuq
