#include "Catalogue/CategoryTree.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace samplelibrary {

namespace {

constexpr int DisciplineStep = 100'000'000;
constexpr int KindStep = 100'000;
constexpr int GroupStep = 1000;

bool IsSameKind(const EndCategory& left, const EndCategory& right)
{
    return left.Discipline == right.Discipline && left.Kind == right.Kind;
}

/// Number of groups that each end category of the source gets, 0 for one that is left out.
std::vector<std::size_t> GroupCounts(std::size_t available, std::size_t wanted)
{
    if (wanted == 0) {
        wanted = available;
    }
    std::vector<std::size_t> counts(available);
    for (std::size_t at = 0; at < available; ++at) {
        counts[at] = (at + 1) * wanted / available - at * wanted / available;
    }
    return counts;
}

CategoryNode DisciplineNode(const ProductSource& source, std::size_t index)
{
    const Discipline& discipline = source.Disciplines[index];
    CategoryNode node;
    node.Id = discipline.Number * DisciplineStep;
    node.Code = discipline.Code;
    node.Discipline = index;
    node.Name = discipline.Name;
    return node;
}

CategoryNode KindNode(const ProductSource& source, const CategoryNode& parent, std::size_t index)
{
    const Kind& kind = source.Kinds[index];
    CategoryNode node;
    node.Id = parent.Id + kind.Number * KindStep;
    node.Code = parent.Code + '.' + kind.Code;
    node.ParentId = parent.Id;
    node.ParentCode = parent.Code;
    node.Level = 1;
    node.Discipline = parent.Discipline;
    node.Kind = index;
    node.Name = kind.Name;
    return node;
}

std::string ComponentIdStem(const ProductSource& source, const CategoryNode& node, int ordinal)
{
    std::array<char, 40> stem{};
    std::snprintf(stem.data(), stem.size(), "C%02d%02d%02d", source.Disciplines[node.Discipline].Number,
        source.Kinds[node.Kind].Number, ordinal);
    return stem.data();
}

CategoryNode EndNode(
    const ProductSource& source, const CategoryNode& parent, std::size_t index, std::size_t group, int ordinal)
{
    const EndCategory& category = source.EndCategories[index];
    CategoryNode node = parent;
    node.Id = parent.Id + ordinal;
    node.Code = parent.Code + '.' + category.Code;
    node.ParentId = parent.Id;
    node.ParentCode = parent.Code;
    node.Level = 2;
    node.EndCategory = index;
    node.Name = category.Name;
    node.ComponentIdStem = ComponentIdStem(source, node, ordinal);
    if (group > 0) {
        const std::string number = std::to_string(group + 1);
        node.Code += "-G" + number;
        node.Name.Chinese += " " + number + "组";
        node.Name.English += ", group " + number;
    }
    return node;
}

/// Puts the nodes into the tree and remembers where the current discipline and kind are.
class TreeMaker
{
public:
    explicit TreeMaker(const ProductSource& source) : m_source(source) {}

    void Add(std::size_t index, std::size_t groups, int ordinal)
    {
        const EndCategory& category = m_source.EndCategories[index];
        EnterDiscipline(category.Discipline);
        EnterKind(category.Kind);
        for (std::size_t group = 0; group < groups; ++group) {
            const int groupOrdinal = ordinal + static_cast<int>(group) * GroupStep;
            m_tree.push_back(EndNode(m_source, m_kind, index, group, groupOrdinal));
        }
    }

    CategoryTree Taken() { return std::move(m_tree); }

private:
    void EnterDiscipline(std::size_t index)
    {
        if (m_tree.empty() || m_discipline.Discipline != index) {
            m_discipline = DisciplineNode(m_source, index);
            m_kind = {};
            m_tree.push_back(m_discipline);
        }
    }

    void EnterKind(std::size_t index)
    {
        if (m_kind.Level == 0 || m_kind.Kind != index) {
            m_kind = KindNode(m_source, m_discipline, index);
            m_tree.push_back(m_kind);
        }
    }

    const ProductSource& m_source;
    CategoryTree m_tree;
    CategoryNode m_discipline;
    CategoryNode m_kind;
};

} // namespace

CategoryTree MakeCategoryTree(const ProductSource& source, std::size_t endCategoryCount)
{
    TreeMaker maker(source);
    const std::vector<std::size_t> groups = GroupCounts(source.EndCategories.size(), endCategoryCount);
    int ordinal = 0;
    for (std::size_t index = 0; index < source.EndCategories.size(); ++index) {
        const bool isFirst = index == 0 || !IsSameKind(source.EndCategories[index - 1], source.EndCategories[index]);
        ordinal = isFirst ? 1 : ordinal + 1;
        if (groups[index] > 0) {
            maker.Add(index, groups[index], ordinal);
        }
    }
    return maker.Taken();
}

std::size_t CountEndCategories(const CategoryTree& tree)
{
    return static_cast<std::size_t>(
        std::count_if(tree.begin(), tree.end(), [](const CategoryNode& node) { return node.Level == 2; }));
}

void SetComponentCounts(CategoryTree& tree, const std::vector<std::size_t>& counts)
{
    std::array<CategoryNode*, 2> above{};
    std::size_t position = 0;
    std::size_t end = 0;
    for (CategoryNode& node : tree) {
        node.FirstPosition = position;
        node.ComponentCount = 0;
        if (node.Level < 2) {
            above[static_cast<std::size_t>(node.Level)] = &node;
            continue;
        }
        node.ComponentCount = counts.at(end++);
        position += node.ComponentCount;
        above[0]->ComponentCount += node.ComponentCount;
        above[1]->ComponentCount += node.ComponentCount;
    }
}

} // namespace samplelibrary
