#pragma once

#include "Catalogue/CategoryTree.h"
#include "Catalogue/Project.h"
#include "Products/ComponentRow.h"

#include <cstddef>
#include <optional>
#include <string>

namespace samplelibrary {

/// A component in a project's library.
struct ProjectRow
{
    std::string Id;
    int Version = 1;
    std::string Status;
};

/// Decides, while the components come by in order, which of them a project's library holds: as many as the project
/// wants, spread evenly over the categories of its major.
class ProjectPicker
{
public:
    /// @param tree with component counts
    ProjectPicker(Project project, const ProductSource& source, const CategoryTree& tree);

    /// What the project holds of @p row, which belongs to @p node; nothing when it does not hold it.
    /// REQUIRES: called once for every component in order.
    std::optional<ProjectRow> Pick(const CategoryNode& node, const ProductSource& source, const ComponentRow& row);

    /// The project.
    const Project& Picked() const { return m_project; }

private:
    Project m_project;
    std::size_t m_available = 0;
    std::size_t m_wanted = 0;
    std::size_t m_seen = 0;
    std::size_t m_taken = 0;
};

} // namespace samplelibrary
