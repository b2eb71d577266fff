#include "Categories/CategoryTree.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace componentlibrary {

CategoryTree::CategoryTree(Categories categories)
{
    AddNodes(std::move(categories));
    FindParents();
    CutCycles();
    GroupChildren();
    Walk();
}

void CategoryTree::AddNodes(Categories categories)
{
    std::unordered_set<std::int32_t> ids;
    ids.reserve(categories.size());
    m_nodes.reserve(categories.size());
    for (auto& category : categories) {
        if (category != nullptr && ids.insert(category->Id).second) {
            m_nodes.emplace_back();
            m_nodes.back().category = std::move(category);
        }
    }
}

void CategoryTree::FindParents()
{
    std::unordered_map<std::int32_t, Index> nodeOfId;
    nodeOfId.reserve(m_nodes.size());
    for (Index node = 0; node < Size(); ++node)
        nodeOfId.emplace(m_nodes[node].category->Id, node);
    for (Index node = 0; node < Size(); ++node) {
        // 0 means "no parent", even when a category carries that id.
        const std::int32_t parentId = m_nodes[node].category->ParentId;
        const auto parent = parentId == 0 ? nodeOfId.end() : nodeOfId.find(parentId);
        m_nodes[node].parent = parent == nodeOfId.end() || parent->second == node ? kNone : parent->second;
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
