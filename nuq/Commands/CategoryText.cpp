#include "Commands/CategoryText.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"

namespace nuq {

using componentlibrary::CategoryTree;

namespace {

/// Beyond this depth the lines are no longer drawn: they would grow with the square of the depth.
constexpr int kDeepestDrawing = 24;

bool IsLastSibling(const CategoryTree& tree, CategoryTree::Index node)
{
    return tree.Place(node) + 1 == tree.ChildCount(tree.Parent(node));
}

std::string Branch(const CategoryTree& tree, CategoryTree::Index node)
{
    if (tree.Depth(node) == 0)
        return std::string();
    std::string branch = IsLastSibling(tree, node) ? "└─ " : "├─ ";
    int drawn = 1;
    for (auto up = tree.Parent(node); tree.Parent(up) != CategoryTree::kNone; up = tree.Parent(up)) {
        if (++drawn > kDeepestDrawing)
            return "… " + branch;
        branch.insert(0, IsLastSibling(tree, up) ? "   " : "│  ");
    }
    return branch;
}

} // namespace

std::string CategoryTable(const Session& session, const CategoryTree::Categories& categories)
{
    Table table =
        session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "ID"))}, {Title(QT_TRANSLATE_NOOP("Titles", "CODE"))},
            {Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
            {Title(QT_TRANSLATE_NOOP("Titles", "COUNT")), Table::Align::Right}});
    for (const auto& category : categories) {
        table.AddRow({std::to_string(category->Id), VisibleText(category->Code), VisibleText(category->Name),
            std::to_string(category->Count)});
    }
    return table.Take();
}

std::string CategoryTreeText(const Session& session, const CategoryTree& tree, int deepest)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "CODE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "COUNT")), Table::Align::Right}});
    for (const CategoryTree::Index node : tree.DepthFirst()) {
        if (deepest >= 0 && tree.Depth(node) > deepest)
            continue;
        const tarnnuq::ICategory& category = tree.Category(node);
        table.AddRow({Branch(tree, node) + VisibleText(category.Name), VisibleText(category.Code),
            std::to_string(category.Count)});
    }
    return table.Take();
}

} // namespace nuq
