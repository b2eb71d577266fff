#include "Commands/CategoriesCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/CategoryText.h"
#include "Commands/PublicCategoryRequest.h"
#include "Commands/RecordJson.h"
#include "Commands/Texts.h"
#include "EnvSvcs/EnvService.h"
#include "Errors/AddressText.h"
#include "Program/Session.h"

namespace nuq {

using componentlibrary::CategoryTree;
using componentlibrary::ErrorCode;
using componentlibrary::ErrorInfo;

namespace {

constexpr std::size_t kBytesOfCategory = 180;

template <class Elements, class WriteElement>
void WriteDocument(Session& session, const QString& keyword, const Elements& elements, const WriteElement& writeElement)
{
    JsonWriter json;
    json.Reserve(elements.size() * kBytesOfCategory + 100);
    json.BeginObject();
    json.List("categories", elements, writeElement);
    json.Member("keyword", keyword);
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

void ShowTree(Session& session, const CategoryTree& tree, const QString& keyword)
{
    if (!session.Options().json)
        return session.Out().Write(CategoryTreeText(session, tree));
    WriteDocument(session, keyword, tree.DepthFirst(), [&tree](JsonWriter& json, CategoryTree::Index node) {
        WriteCategory(json, tree.Category(node), tree.Depth(node));
    });
}

void ShowList(Session& session, const CategoryTree::Categories& categories, const QString& keyword)
{
    if (!session.Options().json)
        return session.Out().Write(CategoryTable(session, categories));
    WriteDocument(
        session, keyword, categories, [](JsonWriter& json, const auto& category) { WriteCategory(json, *category); });
}

void ShowServiceList(Session& session, const CategoryTree::Categories& categories, const QString& keyword)
{
    if (!session.Options().json)
        return session.Out().Write(CategoryTable(session, categories));
    WriteDocument(session, keyword, categories,
        [](JsonWriter& json, const auto& category) { WriteServiceCategory(json, *category); });
}

QString EmptyText(const QString& keyword)
{
    if (keyword.isEmpty())
        return Say(QT_TRANSLATE_NOOP("Messages", "The catalogue has no categories."));
    return Say(QT_TRANSLATE_NOOP("Messages", "No category has a component that matches \"%1\".")).arg(keyword);
}

ErrorInfo ServiceError(ErrorCode code)
{
    ErrorInfo error;
    error.code = code;
    error.operation = componentlibrary::Operation::LoadCategories;
    const QUrl address(QString::fromStdWString(tarnnuq::EnvService::GetPyxApiEndPoint()));
    error.address = componentlibrary::AddressText(address);
    error.tries = code == ErrorCode::Offline ? 0 : 1;
    return error;
}

} // namespace

const CommandSpec& CategoriesCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "categories",
        QT_TRANSLATE_NOOP("CommandTable", "List the categories with the number of their components"),
        QT_TRANSLATE_NOOP("CommandTable", "The count of a category covers its own components and those of the categories below it, each once. With --keyword only the categories with matching components are listed, and those above them."),
        {},
        {
            {"--keyword", "-k", "TEXT", QT_TRANSLATE_NOOP("CommandTable", "Count only components that match this text"), {}, true},
            {"--all", "-a", "", QT_TRANSLATE_NOOP("CommandTable", "With --keyword: list the categories without a match as well")},
            {"--tree", "", "", QT_TRANSLATE_NOOP("CommandTable", "Show the categories as a tree")},
            {"--service", "", "", QT_TRANSLATE_NOOP("CommandTable", "Ask the library's public category service, which knows no codes and reports no errors")},
        },
        {
            {"nuq categories --tree", QT_TRANSLATE_NOOP("CommandTable", "the whole tree")},
            {"nuq categories --keyword pump", QT_TRANSLATE_NOOP("CommandTable", "where pumps are found")},
            {"nuq categories --json | jq -r '.categories[].code'", QT_TRANSLATE_NOOP("CommandTable", "all codes, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void CategoriesCommand::Bind(OptionBinder& binder)
{
    binder.Text("--keyword", m_options.keyword);
    binder.Switch("--all", m_options.all);
    binder.Switch("--tree", m_options.tree);
    binder.Switch("--service", m_options.service);
}

void CategoriesCommand::Check() const
{
    if (m_options.service && m_options.tree)
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "--tree and --service cannot be used together.")));
}

ExitCode CategoriesCommand::Run(Session& session)
{
    if (m_options.service)
        return RunService(session);
    const auto request = session.Catalogue().Categories(m_options.keyword);
    if (!session.Await(*request))
        return session.Fail(request->Error());
    auto categories = request->TakeResult();
    if (!m_options.keyword.isEmpty() && !m_options.all)
        categories = CategoryTree(std::move(categories)).WithComponents();
    if (categories.empty())
        session.Note(EmptyText(m_options.keyword));
    if (m_options.tree)
        ShowTree(session, CategoryTree(std::move(categories)), m_options.keyword);
    else
        ShowList(session, categories, m_options.keyword);
    return ExitCode::Done;
}

ExitCode CategoriesCommand::RunService(Session& session)
{
    if (session.Options().offline)
        return session.Fail(ServiceError(ErrorCode::Offline));
    if (tarnnuq::EnvService::GetPyxApiEndPoint().empty())
        return session.Fail(ServiceError(ErrorCode::ConfigurationNoEndpoint));
    CategoryTree::Categories categories;
    switch (AskPublicCategoryService(session, m_options.keyword, categories)) {
    case ServiceAnswer::Categories:
        ShowServiceList(session, categories, m_options.keyword);
        return ExitCode::Done;
    case ServiceAnswer::TimedOut:
        return session.Fail(ServiceError(ErrorCode::NetworkTimeout));
    case ServiceAnswer::Interrupted:
        return session.Fail(ServiceError(ErrorCode::Cancelled));
    case ServiceAnswer::Nothing:
        break;
    }
    return session.Fail(ExitCode::Failed, "service.no_categories",
        Say(QT_TRANSLATE_NOOP("Messages", "The public category service gave no categories, and it does not say why.")),
        Say(QT_TRANSLATE_NOOP("Messages", "Without --service the program names the reason.")));
}

} // namespace nuq
