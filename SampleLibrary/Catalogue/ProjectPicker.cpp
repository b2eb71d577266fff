#include "Catalogue/ProjectPicker.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace samplelibrary {

namespace {

bool IsOf(const Project& project, const CategoryNode& node, const ProductSource& source)
{
    return project.Major < 0 || source.Disciplines[node.Discipline].Major == project.Major;
}

std::string Numbered(const std::string& stem, std::size_t number)
{
    std::array<char, 24> digits{};
    std::snprintf(digits.data(), digits.size(), "-%05zu", number);
    return stem + digits.data();
}

} // namespace

ProjectPicker::ProjectPicker(Project project, const ProductSource& source, const CategoryTree& tree)
    : m_project(std::move(project))
{
    for (const CategoryNode& node : tree) {
        if (node.Level == 2 && IsOf(m_project, node, source)) {
            m_available += node.ComponentCount;
        }
    }
    m_wanted = std::min(m_project.ComponentCount, m_available);
}

std::optional<ProjectRow> ProjectPicker::Pick(
    const CategoryNode& node, const ProductSource& source, const ComponentRow& row)
{
    if (!IsOf(m_project, node, source)) {
        return std::nullopt;
    }
    ++m_seen;
    if (m_seen * m_wanted / m_available == m_taken) {
        return std::nullopt;
    }
    ++m_taken;
    const bool isOld = row.Version > 1 && m_taken % m_project.OldEvery == 0;
    return ProjectRow{Numbered(m_project.Id, m_taken), row.Version - (isOld ? 1 : 0), isOld ? "outdated" : "current"};
}

} // namespace samplelibrary
