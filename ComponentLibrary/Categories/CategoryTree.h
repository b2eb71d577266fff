#pragma once

#include "Records/ICategory.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace componentlibrary {

/**
 * The category tree behind a view: built once from the service's flat list, in time linear in its length (apart from
 * sorting siblings), whatever the list holds.
 *
 * Parents are found by id. Siblings stand by weight, equal weights in the order of the list. A category whose parent
 * is missing is a root; a parent cycle is cut at the member that comes first in the list, which becomes a root; of
 * several categories with one id the first is kept. So each kept category stands in the tree exactly once. Counts are
 * those of the service: a category's own components and those below, each once.
 */
class CategoryTree
{
public:
    using Categories = std::vector<std::shared_ptr<tarnnuq::ICategory>>;

    /** Index of a node; kNone means "no node". */
    using Index = std::int32_t;
    static constexpr Index kNone = -1;

    CategoryTree() = default;

    /** @param categories null entries are left out; the records are shared, not copied */
    explicit CategoryTree(Categories categories);

    /** Number of nodes. */
    Index Size() const { return static_cast<Index>(m_nodes.size()); }

    /** The record of a node. REQUIRES: 0 <= node < Size(). */
    const tarnnuq::ICategory& Category(Index node) const;

    /**
     * The records that count components, and those above them whatever they count: what a search has found. In the
     * order of the list, so that it looks like the whole list with gaps.
     */
    Categories WithComponents() const;

    /** The parent of a node, kNone for a root. */
    Index Parent(Index node) const;

    /** Number of children; of kNone: number of roots. */
    Index ChildCount(Index node) const;

    /** A child by its place among its siblings; of kNone: a root. REQUIRES: 0 <= place < ChildCount(node). */
    Index Child(Index node, Index place) const;

    /** The place of a node among its siblings. */
    Index Place(Index node) const;

    /** Number of ancestors. */
    Index Depth(Index node) const;

    /** All nodes depth-first, parents before children, siblings in their order. */
    const std::vector<Index>& DepthFirst() const { return m_depthFirst; }

private:
    struct Node
    {
        std::shared_ptr<tarnnuq::ICategory> category;
        Index parent = kNone;
        Index place = 0;
        Index depth = 0;
        Index firstChild = 0; // into m_children
        Index childCount = 0;
    };

    void AddNodes(Categories categories);
    void CutCycles();
    void GroupChildren();
    void Walk();

    std::vector<Node> m_nodes;
    std::vector<Index> m_children; // grouped by parent, the roots first
    Index m_rootCount = 0;
    std::vector<Index> m_depthFirst;
};

} // namespace componentlibrary
