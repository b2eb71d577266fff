#include "Building/CatalogueWriter.h"

#include "Building/BuildError.h"
#include "Building/OrderedWork.h"
#include "Catalogue/Shares.h"
#include "Products/ComponentMaker.h"

#include <algorithm>
#include <numeric>

namespace samplelibrary {

namespace {

/// Largest part: it bounds the memory of what is made but not yet written.
constexpr std::size_t PartSize = 200;

/// As many components as the source describes for the categories at hand; further groups of categories share them out
/// among each other, but each has one.
std::size_t DefaultCount(const std::vector<std::size_t>& natural, const std::vector<std::size_t>& weights)
{
    const std::size_t described = std::accumulate(natural.begin(), natural.end(), std::size_t{0});
    const std::size_t possible = std::accumulate(weights.begin(), weights.end(), std::size_t{0});
    return std::min(possible, std::max(described, weights.size()));
}

ComponentMaker MakerFor(const ProductSource& source, const CategoryNode& node)
{
    return ComponentMaker(source, source.EndCategories[node.EndCategory], node.Name, node.ComponentIdStem);
}

} // namespace

CatalogueWriter::CatalogueWriter(
    const SourceFiles& files, const ProductSource& source, const std::atomic<bool>& isStopped)
    : m_files(files), m_source(source), m_isStopped(isStopped)
{
}

void CatalogueWriter::ThrowIfStopped() const
{
    if (m_isStopped) {
        throw BuildInterrupted();
    }
}

std::vector<std::size_t> CatalogueWriter::NaturalCounts(std::size_t jobs) const
{
    std::vector<std::size_t> counts;
    OrderedWork<std::size_t> work(m_source.EndCategories.size(), [this](std::size_t index) {
        ThrowIfStopped();
        return ComponentMaker(m_source, m_source.EndCategories[index], {}, {}).NaturalCount();
    });
    work.Run(jobs, [&counts](std::size_t&& count) { counts.push_back(count); });
    return counts;
}

CategoryTree CatalogueWriter::MakeTree(const BuildOptions& options) const
{
    CategoryTree tree = MakeCategoryTree(m_source, options.EndCategories);
    const std::vector<std::size_t> natural = NaturalCounts(options.Jobs);
    std::vector<std::size_t> weights;
    for (const CategoryNode& node : tree) {
        if (node.Level == 2) {
            weights.push_back(natural[node.EndCategory]);
        }
    }
    const std::size_t count = options.Components == 0 ? DefaultCount(natural, weights) : options.Components;
    SetComponentCounts(tree, Shares(count, weights));
    return tree;
}

std::vector<CatalogueWriter::Part> CatalogueWriter::Parts(const CategoryTree& tree)
{
    std::vector<Part> parts;
    for (const CategoryNode& node : tree) {
        if (node.Level < 2) {
            continue;
        }
        parts.push_back({&node, 0, std::min(node.ComponentCount, PartSize)});
        for (std::size_t first = PartSize; first < node.ComponentCount; first += PartSize) {
            parts.push_back({&node, first, std::min(node.ComponentCount - first, PartSize)});
        }
    }
    return parts;
}

CatalogueWriter::MadePart CatalogueWriter::MakePart(const Part& part) const
{
    ComponentMaker maker = MakerFor(m_source, *part.Node);
    MadePart made;
    made.Node = part.Node;
    made.First = part.First;
    if (part.First == 0) {
        made.Definitions = {
            maker.Properties().Definitions(Language::Chinese), maker.Properties().Definitions(Language::English)};
    }
    for (std::size_t index = part.First; index < part.First + part.Count; ++index) {
        ThrowIfStopped();
        made.Rows.push_back(maker.Make(index));
    }
    return made;
}

void CatalogueWriter::WritePart(
    CatalogueDatabase& database, std::vector<ProjectPicker>& pickers, const MadePart& part) const
{
    if (part.First == 0) {
        database.AddTemplate(part.Node->Code, part.Definitions);
    }
    std::size_t position = part.Node->FirstPosition + part.First;
    for (const ComponentRow& row : part.Rows) {
        ThrowIfStopped();
        database.AddComponent(position, *part.Node, row);
        for (ProjectPicker& picker : pickers) {
            if (const std::optional<ProjectRow> picked = picker.Pick(*part.Node, m_source, row)) {
                database.AddProjectComponent(picker.Picked(), *picked, row.Id, position);
            }
        }
        ++position;
    }
}

BuildResult CatalogueWriter::Write(
    const QString& folder, const BuildOptions& options, const LibraryBuilder::Progress& progress) const
{
    const CategoryTree tree = MakeTree(options);
    CatalogueDatabase database(folder.toStdString() + "/catalogue.db", m_files.Text("catalogue.sql"), m_source);
    double weight = 0.0;
    for (const CategoryNode& node : tree) {
        database.AddCategory(node, ++weight);
    }
    std::vector<ProjectPicker> pickers;
    for (const Project& project : ReadProjects(m_files)) {
        database.AddProject(project);
        pickers.emplace_back(project, m_source, tree);
    }
    const std::vector<Part> parts = Parts(tree);
    const std::size_t total = tree.empty() ? 0 : tree.back().FirstPosition + tree.back().ComponentCount;
    OrderedWork<MadePart> work(parts.size(), [&](std::size_t number) { return MakePart(parts[number]); });
    work.Run(options.Jobs, [&](MadePart&& part) {
        WritePart(database, pickers, part);
        progress(part.Node->FirstPosition + part.First + part.Rows.size(), total);
    });
    ThrowIfStopped();
    database.Finish();
    return {false, total, tree.size()};
}

} // namespace samplelibrary
