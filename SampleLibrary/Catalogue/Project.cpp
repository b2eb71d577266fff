#include "Catalogue/Project.h"

#include "Reading/TsvTable.h"

namespace samplelibrary {

std::vector<Project> ReadProjects(const SourceFiles& files)
{
    const TsvTable table("projects.tsv", files.Text("projects.tsv"));
    std::vector<Project> projects;
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        projects.push_back({table.Cell(row, "id"), {table.Cell(row, "zh"), table.Cell(row, "en")},
            static_cast<std::size_t>(table.Integer(row, "components")),
            static_cast<std::size_t>(table.Integer(row, "old_every")), table.Integer(row, "major")});
    }
    return projects;
}

} // namespace samplelibrary
