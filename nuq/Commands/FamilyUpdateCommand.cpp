#include "Commands/FamilyUpdateCommand.h"

#include "Commands/RecordJson.h"
#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyWorkingCopy.h"
#include "Families/TypeSpecification.h"
#include "Families/WrittenFiles.h"
#include "FamilyFileSvcs/FamilyFileService.h"
#include "FamilyFiles/FamilyFileFactory.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "Records/IParameter.h"

#include <map>

namespace nuq {

using tarnnuq::ISpecification;
using Texts = std::map<std::wstring, std::wstring>;

namespace {

Texts TextsOf(const ISpecification& specification)
{
    Texts texts;
    for (const auto& [name, parameter] : specification.Parameters) {
        if (parameter)
            texts[name] = parameter->Value;
    }
    return texts;
}

/// Gives the specification an entry for each driven parameter that it lacks: only entries receive values.
void AddDriven(const familyfiles::FamilyModel& model, ISpecification& specification)
{
    std::map<std::wstring, bool> known;
    for (const auto& [name, parameter] : specification.Parameters)
        known[parameter && parameter->Definition ? parameter->Definition->Id : std::wstring()] = true;
    for (const auto& definition : model.Manifest().parameters) {
        const std::wstring id = QString::fromStdString(definition.id).toStdWString();
        const std::wstring name = QString::fromStdString(definition.name).toStdWString();
        if (!definition.IsDriven() || known.count(id) != 0 || specification.Parameters.count(name) != 0)
            continue;
        auto parameter = std::make_shared<tarnnuq::IParameter>();
        parameter->Definition = std::make_shared<tarnnuq::IParameterDefinition>();
        parameter->Definition->Id = id;
        parameter->Definition->Name = name;
        parameter->Definition->Unit = QString::fromStdString(definition.unit).toStdWString();
        specification.Parameters[name] = parameter;
    }
}

void ShowTable(Session& session, const Texts& before, const ISpecification& after)
{
    Table table = session.MakeTable({{""}, {Title(QT_TRANSLATE_NOOP("Titles", "PARAMETER"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "BEFORE")), Table::Align::Right},
        {Title(QT_TRANSLATE_NOOP("Titles", "AFTER")), Table::Align::Right},
        {Title(QT_TRANSLATE_NOOP("Titles", "UNIT"))}});
    for (const auto& [name, parameter] : after.Parameters) {
        if (!parameter || !parameter->Definition)
            continue;
        const std::wstring& old = before.at(name);
        const bool isSame = old == parameter->Value;
        table.AddRow({isSame ? "" : session.Look().Paint(Emphasis::Accent, "*"), VisibleText(name),
            old.empty() ? std::string("-") : VisibleText(old), VisibleText(parameter->Value),
            VisibleText(parameter->Definition->Unit)});
    }
    session.Out().Write(table.Take());
}

void WriteSpecificationDocument(JsonWriter& json, const Texts& before, const ISpecification& after)
{
    json.BeginObject();
    json.Key("before");
    json.BeginObject();
    for (const auto& [name, text] : before) {
        json.Key(name);
        json.Text(std::wstring_view(text));
    }
    json.EndObject();
    json.Member("schema", kSchema);
    json.Key("specification");
    WriteSpecification(json, after);
    json.EndObject();
}

std::string SpecificationText(const ISpecification& specification)
{
    JsonWriter json;
    WriteSpecification(json, specification);
    return json.Take();
}

} // namespace

const CommandSpec& FamilyUpdateCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family update",
        QT_TRANSLATE_NOOP("CommandTable", "Compute the driven parameters of a specification, before and after"),
        QT_TRANSLATE_NOOP("CommandTable", "The family computes them from the values of the specification; what changes is marked. The family file stays as it is."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file")}},
        {
            {"--specification", "-s", "NAME|FILE", QT_TRANSLATE_NOOP("CommandTable", "A type of the family, or a JSON file with one specification; by default the first type")},
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Write the computed specification there, as JSON")},
        },
        {
            {"nuq family update gate-valve.nuqfamily -s wanted.json", QT_TRANSLATE_NOOP("CommandTable", "the values before and after")},
            {"nuq family update gate-valve.nuqfamily -s wanted.json -o computed.json", QT_TRANSLATE_NOOP("CommandTable", "and the specification as it is then")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyUpdateCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.file);
    binder.Text("--specification", m_options.specification);
    binder.Text("--output", m_options.output);
}

std::shared_ptr<ISpecification> FamilyUpdateCommand::Wanted(
    Session& session, const familyfiles::FamilyModel& model, ExitCode& code) const
{
    const QString name = m_options.specification.isEmpty() ? QString::fromStdString(model.Manifest().types.front().name)
                                                           : m_options.specification;
    const Specifications wanted = NamedSpecifications(session, model, name, code);
    if (wanted.size() > 1) {
        code = session.Fail(ExitCode::Failed, "family.several-specifications",
            Say(QT_TRANSLATE_NOOP("Messages", "The file %1 holds %2 specifications; only one can be computed."))
                .arg(name)
                .arg(wanted.size()));
    }
    return wanted.size() == 1 ? wanted.front() : nullptr;
}

ExitCode FamilyUpdateCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    const auto model = OpenFamily(session, m_options.file, code);
    const auto specification = model ? Wanted(session, *model, code) : nullptr;
    if (!specification)
        return code;
    AddDriven(*model, *specification);
    const Texts before = TextsOf(*specification);
    const componentlibrary::FamilyWorkingCopy copy(m_options.file);
    if (copy.Service() == nullptr)
        return session.Fail(ExitCode::Failed, "family.file.not-copied", copy.Fault());
    bool isChanged = false;
    if (!copy.Service()->UpdateDrivenParameters(specification, isChanged))
        return FailWith(session, session.Host().FamilyFiles().LastReason());
    WrittenFiles files(session);
    if (!m_options.output.isEmpty() &&
        !files.Write(m_options.output, QByteArray::fromStdString(SpecificationText(*specification))))
        return files.Code();
    if (session.Options().json) {
        JsonWriter json;
        WriteSpecificationDocument(json, before, *specification);
        session.WriteDocument(json);
    } else {
        ShowTable(session, before, *specification);
    }
    return ExitCode::Done;
}

} // namespace nuq
