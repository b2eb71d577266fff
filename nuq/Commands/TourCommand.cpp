#include "Commands/TourCommand.h"

#include "Commands/CategoryText.h"
#include "Commands/ComponentFields.h"
#include "Commands/ComponentText.h"
#include "Commands/SpecificationText.h"
#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <optional>

namespace nuq {

using componentlibrary::CategoryTree;
using componentlibrary::ComponentQuery;

namespace {

constexpr int kComponents = 5;
constexpr std::size_t kParameters = 10;

/// Tells the tour step by step: to people at once, as a document at its end.
class Guide
{
public:
    explicit Guide(Session& session) : m_session(session)
    {
        m_json.BeginObject();
        m_json.Member("schema", kSchema);
        m_json.Key("steps");
        m_json.BeginArray(true);
    }

    void Tell(const QString& title, const std::string& command, const std::string& text)
    {
        m_json.BeginObject();
        m_json.Member("command", command);
        m_json.Member("text", text);
        m_json.Member("title", title);
        m_json.EndObject();
        if (m_session.Options().json)
            return;
        const Style& style = m_session.Look();
        m_session.Out().Write(style.Paint(Emphasis::Strong, VisibleText(title)) + "\n" +
                              style.Paint(Emphasis::Accent, "$ " + command) + "\n" + text + "\n");
        m_session.Out().Flush();
    }

    void End()
    {
        m_json.EndArray();
        m_json.EndObject();
        if (m_session.Options().json)
            m_session.WriteDocument(m_json);
    }

private:
    Session& m_session;
    JsonWriter m_json;
};

/// A place in a shell command: quoted when it is more than plain letters and digits.
std::string Quoted(const QString& text)
{
    for (const QChar character : text) {
        const bool isPlain = character.isLetterOrNumber() || QStringLiteral("-_.").contains(character);
        if (!isPlain)
            return "'" + VisibleText(QString(text).replace(QLatin1Char('\''), QLatin1String("'\\''"))) + "'";
    }
    return VisibleText(text);
}

/// The end category with the most components: it has something to show.
const tarnnuq::ICategory* RichestLeaf(const CategoryTree& tree)
{
    const tarnnuq::ICategory* best = nullptr;
    for (const CategoryTree::Index node : tree.DepthFirst()) {
        const tarnnuq::ICategory& category = tree.Category(node);
        if (tree.ChildCount(node) == 0 && (best == nullptr || category.Count > best->Count))
            best = &category;
    }
    return best;
}

} // namespace

const CommandSpec& TourCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "tour",
        QT_TRANSLATE_NOOP("CommandTable", "Look around: categories, components, one component, its values"),
        "",
        {},
        {},
        {
            {"nuq tour", QT_TRANSLATE_NOOP("CommandTable", "the tour")},
            {"nuq tour --lang zh", QT_TRANSLATE_NOOP("CommandTable", "the tour in Chinese")},
        },
    };
    // clang-format on
    return spec;
}

void TourCommand::Bind(OptionBinder&) {}

ExitCode TourCommand::Run(Session& session)
{
    Guide guide(session);
    const auto categories = session.Catalogue().Categories(QString());
    if (!session.Await(*categories))
        return session.Fail(categories->Error());
    const CategoryTree tree(categories->TakeResult());
    guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "1. The catalogue: %1 categories")).arg(tree.Size()),
        "nuq categories --tree", CategoryTreeText(session, tree, 0));
    const tarnnuq::ICategory* category = RichestLeaf(tree);
    if (category == nullptr)
        return guide.End(), ExitCode::Done;

    ComponentQuery query;
    query.categoryCode = QString::fromStdWString(category->Code);
    query.pageSize = kComponents;
    const auto page = session.Catalogue().ComponentPage(query);
    if (!session.Await(*page))
        return session.Fail(page->Error());
    Table table = ComponentTable(session);
    AddComponents(table, page->Result().List);
    guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "2. %1: %2 components, the first %3"))
                   .arg(QString::fromStdWString(category->Name))
                   .arg(page->Result().TotalCount)
                   .arg(page->Result().List.size()),
        "nuq components --category " + Quoted(query.categoryCode) + " --page-size " + std::to_string(kComponents),
        table.Take());
    if (page->Result().List.empty())
        return guide.End(), ExitCode::Done;

    const QString id = QString::fromStdWString(page->Result().List.front()->Id);
    const auto component = session.Catalogue().Component(id, QString());
    if (!session.Await(*component))
        return session.Fail(component->Error());
    guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "3. One of them")), "nuq component " + Quoted(id),
        ComponentFields(*component->Result()).Text(session.Look()));

    const auto& types = component->Result()->FamilyTypeNames;
    if (!types.empty()) {
        const QString type = QString::fromStdWString(types.front());
        const auto specification = session.Catalogue().Specification(id, type, QString());
        if (!session.Await(*specification))
            return session.Fail(specification->Error());
        guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "4. Its values as %1")).arg(type),
            "nuq specifications " + Quoted(id) + " --type " + Quoted(type),
            SpecificationTable(session, {specification->Result()}));
    }
    guide.End();
    session.Note(Say(QT_TRANSLATE_NOOP("Messages",
        "Next: \"nuq --help\" for all commands, \"--json\" for scripts, \"nuq doctor\" if something fails.")));
    return ExitCode::Done;
}

} // namespace nuq
