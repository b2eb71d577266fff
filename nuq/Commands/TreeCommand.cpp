#include "Commands/TreeCommand.h"

#include "Commands/LocalLibrary.h"
#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "PropertySvcs/PropertyService.h"

#include <algorithm>

namespace nuq {
namespace {

using Categories = std::vector<std::shared_ptr<tarnnuq::ICategory>>;

constexpr std::size_t kBytesOfCategory = 220;

/// The root of the tree is level 0; the path of a discipline names the root too, those below do not.
int LevelOf(const tarnnuq::ICategory& category, bool isDiscipline)
{
    return isDiscipline ? 1 : static_cast<int>(category.NamePath.size());
}

bool IsDiscipline(const tarnnuq::ICategory& category)
{
    return category.ParentCode == L"0";
}

/// The category with that code and all beneath it, which follow it in the tree's order.
Categories Beneath(const Categories& all, const std::wstring& code)
{
    Categories chosen;
    int level = -1;
    for (const auto& category : all) {
        const int own = LevelOf(*category, IsDiscipline(*category));
        if (level >= 0 && own <= level)
            break;
        if (level < 0 && category->Code == code)
            level = own;
        if (level >= 0)
            chosen.push_back(category);
    }
    return chosen;
}

void ShowTree(Session& session, const Categories& categories)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "CODE"))}});
    for (const auto& category : categories) {
        const int level = LevelOf(*category, IsDiscipline(*category));
        if (level == 0)
            continue; // the root stands for the whole tree
        const std::string indent(2 * static_cast<std::size_t>(level - 1), ' ');
        table.AddRow({indent + VisibleText(category->Name), VisibleText(category->Code)});
    }
    session.Out().Write(table.Take());
}

void WriteTree(Session& session, const Categories& categories)
{
    JsonWriter json;
    json.Reserve(categories.size() * kBytesOfCategory);
    json.BeginObject();
    json.List("categories", categories, [](JsonWriter& list, const auto& category) {
        list.BeginObject();
        list.Member("code", category->Code);
        list.Member("id", category->IdText);
        list.Member("isLeaf", category->IsLeaf);
        list.Member("name", category->Name);
        list.Key("namePath");
        list.BeginArray();
        for (const std::wstring& name : category->NamePath)
            list.Text(std::wstring_view(name));
        list.EndArray();
        list.Member("parentCode", category->ParentCode);
        list.Member("parentId", category->ParentIdText);
        list.EndObject();
    });
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& TreeCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "tree",
        QT_TRANSLATE_NOOP("CommandTable", "Show the category tree of the library on this machine"),
        QT_TRANSLATE_NOOP("CommandTable", "Needs no network. The disciplines stand at the left, their categories and end categories below them."),
        {{"CODE", QT_TRANSLATE_NOOP("CommandTable", "Show only the category with this code and those beneath it"), false}},
        {},
        {
            {"nuq tree", QT_TRANSLATE_NOOP("CommandTable", "the whole tree")},
            {"nuq tree WAT --json | jq -r '.categories[] | select(.isLeaf) | .code'", QT_TRANSLATE_NOOP("CommandTable", "the end categories of a discipline, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void TreeCommand::Bind(OptionBinder& binder)
{
    binder.Argument("CODE", m_code);
}

ExitCode TreeCommand::Run(Session& session)
{
    if (!HasLocalLibrary(session))
        return FailLocally(session);
    Categories categories = tarnnuq::PropertyService::Get()->GetCategories();
    if (!m_code.isEmpty()) {
        categories = Beneath(categories, m_code.toStdWString());
        if (categories.empty())
            return FailUnknownCategory(session, m_code);
    }
    if (session.Options().json)
        WriteTree(session, categories);
    else
        ShowTree(session, categories);
    return ExitCode::Done;
}

} // namespace nuq
