#include "Categories/CategoryTree.h"

#include <algorithm>
#include <utility>

namespace componentlibrary {
namespace {

/// Where each id stands first. Sorted, not hashed: whoever sends the list chooses the ids and could make them collide.
class PlacesOfIds
{
public:
    explicit PlacesOfIds(const CategoryTree::Categories& categories)
    {
        m_places.reserve(categories.size());
        for (std::size_t at = 0; at < categories.size(); ++at) {
            if (categories[at] != nullptr)
                m_places.emplace_back(categories[at]->Id, at);
        }
        std::sort(m_places.begin(), m_places.end());
    }

    /// The first place of an id, or `absent`.
    std::size_t Find(std::int32_t id, std::size_t absent) const
    {
        const auto place = std::lower_bound(m_places.begin(), m_places.end(), std::make_pair(id, std::size_t{0}));
        return place == m_places.end() || place->first != id ? absent : place->second;
    }

private:
    std::vector<std::pair<std::int32_t, std::size_t>> m_places;
};

} // namespace

CategoryTree::CategoryTree(Categories categories)
{
    AddNodes(std::move(categories));
    CutCycles();
    GroupChildren();
    Walk();
}

void CategoryTree::AddNodes(Categories categories)
{
    const PlacesOfIds places(categories);
    const std::size_t absent = categories.size();
    std::vector<Index> nodeAt(categories.size(), kNone);
    for (std::size_t at = 0; at < categories.size(); ++at) {
        if (categories[at] != nullptr && places.Find(categories[at]->Id, absent) == at) {
            nodeAt[at] = Size();
            m_nodes.emplace_back();
            m_nodes.back().category = std::move(categories[at]);
        }
    }
    for (Index node = 0; node < Size(); ++node) {
        // 0 means "no parent", even when a category carries that id.
        const std::int32_t parentId = m_nodes[node].category->ParentId;
        const std::size_t parent = parentId == 0 ? absent : places.Find(parentId, absent);
        m_nodes[node].parent = parent == absent || nodeAt[parent] == node ? kNone : nodeAt[parent];
    }
}

void CategoryTree::CutCycles()
{
    // Each walk upwards stops at the first node that an earlier walk has seen, so all walks together are linear.
    std::vector<Index> seenBy(m_nodes.size(), kNone);
    for (Index start = 0; start < Size(); ++start) {
        Index node = start;
        while (node != kNone && seenBy[node] == kNone) {
            seenBy[node] = start;
            node = m_nodes[node].parent;
        }
        if (node == kNone || seenBy[node] != start)
            continue;
        Index first = node;
        for (Index member = m_nodes[node].parent; member != node; member = m_nodes[member].parent)
            first = std::min(first, member);
        m_nodes[first].parent = kNone;
    }
}

void CategoryTree::GroupChildren()
{
    m_children.resize(m_nodes.size());
    for (const Node& node : m_nodes)
        ++(node.parent == kNone ? m_rootCount : m_nodes[node.parent].childCount);
    Index begin = m_rootCount;
    for (Node& node : m_nodes) {
        node.firstChild = begin;
        begin += node.childCount;
    }
    std::vector<Index> byWeight(m_nodes.size());
    for (Index node = 0; node < Size(); ++node)
        byWeight[node] = node;
    std::stable_sort(byWeight.begin(), byWeight.end(),
        [this](Index one, Index other) { return m_nodes[one].category->Weight < m_nodes[other].category->Weight; });
    Index roots = 0;
    std::vector<Index> filled(m_nodes.size(), 0);
    for (const Index node : byWeight) {
        const Index parent = m_nodes[node].parent;
        Index& place = parent == kNone ? roots : filled[parent];
        m_nodes[node].place = place;
        m_children[(parent == kNone ? 0 : m_nodes[parent].firstChild) + place] = node;
        ++place;
    }
}

void CategoryTree::Walk()
{
    m_depthFirst.reserve(m_nodes.size());
    std::vector<Index> stack(m_children.begin(), m_children.begin() + m_rootCount);
    std::reverse(stack.begin(), stack.end());
    while (!stack.empty()) {
        const Index node = stack.back();
        stack.pop_back();
        m_depthFirst.push_back(node);
        if (m_nodes[node].parent != kNone)
            m_nodes[node].depth = m_nodes[m_nodes[node].parent].depth + 1;
        for (Index place = m_nodes[node].childCount; place > 0; --place)
            stack.push_back(Child(node, place - 1));
    }
}

const tarnnuq::ICategory& CategoryTree::Category(Index node) const
{
    return *m_nodes[node].category;
}

CategoryTree::Categories CategoryTree::WithComponents() const
{
    std::vector<bool> isWanted(m_nodes.size(), false);
    for (Index start = 0; start < Size(); ++start) {
        if (m_nodes[start].category->Count == 0)
            continue;
        for (Index node = start; node != kNone && !isWanted[node]; node = m_nodes[node].parent)
            isWanted[node] = true;
    }
    Categories wanted;
    for (Index node = 0; node < Size(); ++node) {
        if (isWanted[node])
            wanted.push_back(m_nodes[node].category);
    }
    return wanted;
}

CategoryTree::Index CategoryTree::Parent(Index node) const
{
    return m_nodes[node].parent;
}

CategoryTree::Index CategoryTree::ChildCount(Index node) const
{
    return node == kNone ? m_rootCount : m_nodes[node].childCount;
}

CategoryTree::Index CategoryTree::Child(Index node, Index place) const
{
    return m_children[(node == kNone ? 0 : m_nodes[node].firstChild) + place];
}

CategoryTree::Index CategoryTree::Place(Index node) const
{
    return m_nodes[node].place;
}

CategoryTree::Index CategoryTree::Depth(Index node) const
{
    return m_nodes[node].depth;
}

} // namespace componentlibrary
