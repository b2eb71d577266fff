#include "Commands/ExistsCommand.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "Records/ProjectComponentExistingCheck.h"

#include <vector>

namespace nuq {

using componentlibrary::ErrorInfo;
using componentlibrary::ExistenceRequest;

struct ExistsCommand::Answer
{
    std::wstring projectId;
    std::wstring projectName;
    bool exists = false;
    int version = 0;
};

const CommandSpec& ExistsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "exists",
        QT_TRANSLATE_NOOP("CommandTable", "Tell in which projects a public component is already used"),
        QT_TRANSLATE_NOOP("CommandTable", "The answer \"no\" is an answer: the exit code is 0 then, too."),
        {{"ID", QT_TRANSLATE_NOOP("CommandTable", "The id of the public component")}},
        {
            {"--project", "-p", "ID", QT_TRANSLATE_NOOP("CommandTable", "Ask only about this project; by default about all")},
        },
        {
            {"nuq exists ID", QT_TRANSLATE_NOOP("CommandTable", "one line a project")},
            {"nuq exists ID --project P --json | jq '.projects[0].exists'", QT_TRANSLATE_NOOP("CommandTable", "true or false, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void ExistsCommand::Bind(OptionBinder& binder)
{
    binder.Argument("ID", m_options.id);
    binder.Text("--project", m_options.projectId);
}

namespace {

template <class Answers>
void ShowTable(Session& session, const Answers& answers)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "PROJECT"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "NAME"))}, {Title(QT_TRANSLATE_NOOP("Titles", "EXISTS"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "VERSION")), Table::Align::Right}});
    for (const auto& answer : answers) {
        table.AddRow({VisibleText(answer.projectId), VisibleText(answer.projectName), YesNo(answer.exists),
            answer.exists ? std::to_string(answer.version) : std::string("-")});
    }
    session.Out().Write(table.Take());
}

template <class Answers>
void WriteAnswers(Session& session, const QString& id, const Answers& answers)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("componentId", id);
    json.List("projects", answers, [](JsonWriter& list, const auto& answer) {
        list.BeginObject();
        list.Member("exists", answer.exists);
        list.Member("projectId", answer.projectId);
        list.Member("projectName", answer.projectName);
        list.Member("version", answer.version);
        list.EndObject();
    });
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

/// All at once: the queue lets as many go out together as the server is to be asked.
ErrorInfo ExistsCommand::Ask(Session& session, std::vector<Answer>& answers) const
{
    std::vector<std::unique_ptr<ExistenceRequest>> requests;
    requests.reserve(answers.size());
    for (const Answer& answer : answers) {
        requests.push_back(session.Catalogue().Existence(m_options.id, QString::fromStdWString(answer.projectId)));
        requests.back()->Start();
    }
    for (std::size_t at = 0; at < answers.size(); ++at) {
        if (!session.Await(*requests[at]))
            return requests[at]->Error();
        answers[at].exists = requests[at]->Result()->Exist;
        answers[at].version = requests[at]->Result()->Version;
    }
    return ErrorInfo();
}

ExitCode ExistsCommand::Run(Session& session)
{
    std::vector<Answer> answers;
    const auto projects = session.Catalogue().Projects();
    if (!session.Await(*projects))
        return session.Fail(projects->Error());
    for (const auto& project : projects->Result()) {
        if (m_options.projectId.isEmpty() || m_options.projectId.toStdWString() == project->Id)
            answers.push_back({project->Id, project->Name});
    }
    if (answers.empty() && !m_options.projectId.isEmpty())
        answers.push_back({m_options.projectId.toStdWString(), std::wstring()}); // the service says what it knows of it
    const ErrorInfo error = Ask(session, answers);
    if (error.IsError())
        return session.Fail(error);
    if (session.Options().json)
        WriteAnswers(session, m_options.id, answers);
    else
        ShowTable(session, answers);
    return ExitCode::Done;
}

} // namespace nuq
