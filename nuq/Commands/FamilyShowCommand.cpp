#include "Commands/FamilyShowCommand.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/FamilyDocument.h"
#include "FamilyFiles/FamilyFileReader.h"
#include "Output/FieldList.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <QStringList>

namespace nuq {

using familyfiles::FamilyManifest;
using familyfiles::ParameterDefinition;
using familyfiles::Value;

namespace {

std::string Visible(const std::string& utf8)
{
    return VisibleText(QString::fromStdString(utf8));
}

QString Rounded(double number)
{
    return QString::number(number, 'f', 1);
}

QString TypeNames(const FamilyManifest& manifest)
{
    QStringList names;
    for (const auto& type : manifest.types)
        names << QString::fromStdString(type.name);
    return QStringLiteral("%1: %2").arg(names.size()).arg(names.join(QStringLiteral(", ")));
}

std::string BuiltText(const FamilyManifest& manifest)
{
    if (manifest.geometry.empty())
        return Title(QT_TRANSLATE_NOOP("Titles", "none"));
    if (!manifest.built)
        return Title(QT_TRANSLATE_NOOP("Titles", "not built yet"));
    const auto& box = manifest.built->box;
    return VisibleText(QStringLiteral("%1 x %2 x %3 mm, %4 cm3 (%5)")
                           .arg(Rounded(box[3] - box[0]), Rounded(box[4] - box[1]), Rounded(box[5] - box[2]),
                               Rounded(manifest.built->volume / 1000), QString::fromStdString(manifest.built->kernel)));
}

QString ConnectorNames(const FamilyManifest& manifest)
{
    QStringList names;
    for (const auto& connector : manifest.connectors)
        names << QStringLiteral("%1 (%2)").arg(
            QString::fromStdString(connector.name), QString::fromStdString(connector.system));
    return names.join(QStringLiteral(", "));
}

void ShowFields(Session& session, const FamilyManifest& manifest, const QString& path)
{
    FieldList fields;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "File")), VisibleText(path));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Name")), VisibleText(TextOf(session, manifest.name)));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Category")), Visible(manifest.category));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Family types")), VisibleText(TypeNames(manifest)));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Geometry")), BuiltText(manifest));
    if (!manifest.connectors.empty())
        fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Connectors")), VisibleText(ConnectorNames(manifest)));
    session.Out().Write(fields.Text(session.Look()));
}

std::string Limits(const ParameterDefinition& definition)
{
    if (!definition.allowed.empty()) {
        std::string text;
        for (const Value& value : definition.allowed)
            text += (text.empty() ? "" : ", ") + FamilyValueText(value);
        return text;
    }
    const auto limit = [](const std::optional<double>& number) {
        return number ? familyfiles::ValueText(*number) : std::string();
    };
    return definition.minimum || definition.maximum ? limit(definition.minimum) + "..." + limit(definition.maximum)
                                                    : std::string();
}

void ShowParameters(Session& session, const FamilyManifest& manifest, const std::vector<Value>& values)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "PARAMETER"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "VALUE")), Table::Align::Right},
        {Title(QT_TRANSLATE_NOOP("Titles", "UNIT"))}, {Title(QT_TRANSLATE_NOOP("Titles", "POSSIBLE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "FORMULA"))}});
    for (std::size_t index = 0; index < values.size(); ++index) {
        const ParameterDefinition& definition = manifest.parameters[index];
        table.AddRow({Visible(definition.name), VisibleText(TextOf(session, definition.label)),
            FamilyValueText(values[index]), Visible(definition.unit), Limits(definition), Visible(definition.formula)});
    }
    session.Out().Write(table.Take());
}

} // namespace

const CommandSpec& FamilyShowCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "family show",
        QT_TRANSLATE_NOOP("CommandTable", "Show what a family file holds: parameters, types, geometry, connectors"),
        QT_TRANSLATE_NOOP("CommandTable", "The values are those of one type. Parameters with a formula are computed from the others. No geometry is built."),
        {{"FILE", QT_TRANSLATE_NOOP("CommandTable", "The family file")}},
        {
            {"--type", "-t", "NAME", QT_TRANSLATE_NOOP("CommandTable", "The type whose values are shown; by default the first")},
        },
        {
            {"nuq family show gate-valve.nuqfamily", QT_TRANSLATE_NOOP("CommandTable", "the values of the first type")},
            {"nuq family show gate-valve.nuqfamily --type DN50 --json", QT_TRANSLATE_NOOP("CommandTable", "those of another type, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void FamilyShowCommand::Bind(OptionBinder& binder)
{
    binder.Argument("FILE", m_options.file);
    binder.Text("--type", m_options.type);
}

ExitCode FamilyShowCommand::Run(Session& session)
{
    ExitCode code = ExitCode::Done;
    familyfiles::Reason reason;
    const auto model = OpenFamily(session, m_options.file, code);
    const auto type = model ? FindType(session, *model, m_options.type, code) : std::nullopt;
    if (!type)
        return code;
    const auto values = model->TypeValues(*type, reason);
    if (!values)
        return FailWith(session, reason);
    const FamilyManifest& manifest = model->Manifest();
    if (!session.Options().json) {
        ShowFields(session, manifest, m_options.file);
        session.Out().Write(
            "\n" + Title(QT_TRANSLATE_NOOP("Titles", "Type")) + " " + Visible(manifest.types[*type].name) + "\n");
        ShowParameters(session, manifest, *values);
        return ExitCode::Done;
    }
    const auto entries = familyfiles::FamilyFileReader::ReadEntryNames(m_options.file.toStdString(), reason);
    if (!entries)
        return FailWith(session, reason);
    JsonWriter json;
    WriteFamily(json, *model, *type, *values, *entries);
    session.WriteDocument(json);
    return ExitCode::Done;
}

} // namespace nuq
