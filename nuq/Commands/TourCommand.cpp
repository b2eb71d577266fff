#include "Commands/TourCommand.h"

#include "Commands/CategoryText.h"
#include "Commands/ComponentFields.h"
#include "Commands/ComponentText.h"
#include "Commands/SpecificationText.h"
#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/IParameter.h"
#include "Records/ISpecification.h"

#include <memory>

namespace nuq {

using componentlibrary::CategoryTree;
using componentlibrary::ComponentQuery;

namespace {

constexpr int kComponents = 5;
constexpr std::size_t kFamilyTypes = 6;
constexpr std::size_t kParameters = 8;

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

/// A family type with its given values only, and not too many of them.
std::shared_ptr<tarnnuq::ISpecification> Abridged(const tarnnuq::ISpecification& specification)
{
    auto abridged = std::make_shared<tarnnuq::ISpecification>();
    abridged->Name = specification.Name;
    for (const auto& [name, parameter] : specification.Parameters) {
        if (parameter != nullptr && parameter->IsValueSpecified && abridged->Parameters.size() < kParameters)
            abridged->Parameters.emplace(name, parameter);
    }
    return abridged;
}

/// The steps one after the other; each returns whether the tour goes on.
class Tour
{
public:
    explicit Tour(Session& session) : m_session(session), m_guide(session) {}

    ExitCode Run()
    {
        if (!ShowTree() || !ShowComponents() || !ShowComponent() || !ShowValues() || !ShowSearch())
            return m_code;
        m_guide.End();
        m_session.Note(Say(QT_TRANSLATE_NOOP("Messages",
            "Next: \"nuq --help\" for all commands, \"--json\" for scripts, \"nuq doctor\" if something fails.")));
        return ExitCode::Done;
    }

private:
    bool Await(componentlibrary::RequestBase& request)
    {
        if (m_session.Await(request))
            return true;
        m_code = m_session.Fail(request.Error());
        return false;
    }

    bool ShowTree()
    {
        const auto request = m_session.Catalogue().Categories(QString());
        if (!Await(*request))
            return false;
        const CategoryTree tree(request->TakeResult());
        m_guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "The catalogue has %1 categories; these are the first level"))
                         .arg(tree.Size()),
            "nuq categories --tree", CategoryTreeText(m_session, tree, 0));
        if (const tarnnuq::ICategory* category = RichestLeaf(tree)) {
            m_categoryCode = QString::fromStdWString(category->Code);
            m_categoryName = QString::fromStdWString(category->Name);
        }
        return true;
    }

    bool ShowComponents()
    {
        ComponentQuery query;
        query.categoryCode = m_categoryCode;
        query.pageSize = kComponents;
        const auto request = m_session.Catalogue().ComponentPage(query);
        if (!Await(*request))
            return false;
        const auto& page = request->Result();
        Table table = ComponentTable(m_session);
        AddComponents(table, page.List);
        m_guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "%1: the first of %2 components"))
                         .arg(m_categoryName, QString::number(page.TotalCount)),
            "nuq components --category " + Quoted(m_categoryCode) + " --page-size " + std::to_string(kComponents),
            table.Take());
        if (!page.List.empty())
            m_componentId = QString::fromStdWString(page.List.front()->Id);
        return true;
    }

    bool ShowComponent()
    {
        if (m_componentId.isEmpty())
            return true;
        const auto request = m_session.Catalogue().Component(m_componentId, QString());
        if (!Await(*request))
            return false;
        tarnnuq::IDetailedProjectComponent component = *request->Result();
        if (!component.FamilyTypeNames.empty())
            m_familyType = QString::fromStdWString(component.FamilyTypeNames.front());
        if (component.FamilyTypeNames.size() > kFamilyTypes) {
            component.FamilyTypeNames.resize(kFamilyTypes);
            component.FamilyTypeNames.push_back(L"…");
        }
        m_guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "One component with its family types and pictures")),
            "nuq component " + Quoted(m_componentId), ComponentFields(component).Text(m_session.Look()));
        return true;
    }

    bool ShowValues()
    {
        if (m_familyType.isEmpty())
            return true;
        const auto request = m_session.Catalogue().Specification(m_componentId, m_familyType, QString());
        if (!Await(*request))
            return false;
        m_guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "Some of its values as %1")).arg(m_familyType),
            "nuq specifications " + Quoted(m_componentId) + " --type " + Quoted(m_familyType),
            SpecificationTable(m_session, {Abridged(*request->Result())}));
        return true;
    }

    bool ShowSearch()
    {
        ComponentQuery query;
        query.keyword = QStringLiteral("DN50");
        query.pageSize = kComponents;
        const auto request = m_session.Catalogue().ComponentPage(query);
        if (!Await(*request))
            return false;
        Table table = ComponentTable(m_session);
        AddComponents(table, request->Result().List);
        m_guide.Tell(Say(QT_TRANSLATE_NOOP("Messages", "A search: \"%1\" is found in %2 components"))
                         .arg(query.keyword, QString::number(request->Result().TotalCount)),
            "nuq components --keyword DN50 --page-size " + std::to_string(kComponents), table.Take());
        return true;
    }

    Session& m_session;
    Guide m_guide;
    ExitCode m_code = ExitCode::Failed;
    QString m_categoryCode;
    QString m_categoryName;
    QString m_componentId;
    QString m_familyType;
};

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
    Tour tour(session);
    return tour.Run();
}

} // namespace nuq
