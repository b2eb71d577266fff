#include "Commands/PropertiesCommand.h"

#include "Commands/LocalLibrary.h"
#include "Commands/RecordJson.h"
#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "PropertySvcs/PropertyService.h"
#include "Records/ICategoryProperty.h"

namespace nuq {
namespace {

using tarnnuq::ICategoryProperty;

void ShowTable(Session& session, const ICategoryProperty& property)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "CODE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "GROUP"))}, {Title(QT_TRANSLATE_NOOP("Titles", "TYPE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "UNIT"))}, {Title(QT_TRANSLATE_NOOP("Titles", "REQUIRED"))}});
    for (const auto& [name, definition] : property.ParameterDefinitions) {
        if (definition == nullptr)
            continue;
        table.AddRow({VisibleText(definition->Code), VisibleText(name), VisibleText(definition->GroupName),
            VisibleText(definition->ValueType), VisibleText(definition->Unit), YesNo(definition->IsEssential)});
    }
    session.Out().Write(table.Take());
}

void WriteDocument(Session& session, const QString& code, const ICategoryProperty& property)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("categoryCode", code);
    json.Member("categoryId", property.CategoryId);
    json.Member("categoryName", property.CategoryName);
    json.Key("properties");
    json.BeginArray(true);
    for (const auto& [name, definition] : property.ParameterDefinitions) {
        if (definition != nullptr)
            WriteDefinition(json, *definition);
    }
    json.EndArray();
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

ExitCode Show(Session& session, const QString& code, const ICategoryProperty& property)
{
    if (session.Options().json)
        WriteDocument(session, code, property);
    else
        ShowTable(session, property);
    if (property.ParameterDefinitions.empty())
        session.Note(
            Say(QT_TRANSLATE_NOOP("Messages", "The category has no properties of its own; end categories have them.")));
    return ExitCode::Done;
}

} // namespace

const CommandSpec& PropertiesCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "properties",
        QT_TRANSLATE_NOOP("CommandTable", "Show the properties that components of a category have"),
        QT_TRANSLATE_NOOP("CommandTable", "By default from the library on this machine, which needs no network and lists the properties of types alone."),
        {{"CODE", QT_TRANSLATE_NOOP("CommandTable", "The code of the category")}},
        {
            {"--cloud", "", "", QT_TRANSLATE_NOOP("CommandTable", "Take the property template of the cloud")},
        },
        {
            {"nuq properties WAT.PIPE.GALV", QT_TRANSLATE_NOOP("CommandTable", "the properties of an end category")},
            {"nuq properties CODE --cloud", QT_TRANSLATE_NOOP("CommandTable", "the template of an end category")},
        },
    };
    // clang-format on
    return spec;
}

void PropertiesCommand::Bind(OptionBinder& binder)
{
    binder.Argument("CODE", m_options.code);
    binder.Switch("--cloud", m_options.cloud);
}

ExitCode PropertiesCommand::Run(Session& session)
{
    if (m_options.cloud)
        return RunInCloud(session);
    if (!HasLocalLibrary(session))
        return FailLocally(session);
    const auto property = tarnnuq::PropertyService::Get()->GetCategoryProperty(m_options.code.toStdWString());
    return property == nullptr ? FailUnknownCategory(session, m_options.code)
                               : Show(session, m_options.code, *property);
}

ExitCode PropertiesCommand::RunInCloud(Session& session)
{
    const auto request = session.Catalogue().PropertyTemplate(m_options.code);
    if (!session.Await(*request))
        return session.Fail(request->Error());
    return Show(session, m_options.code, *request->Result());
}

} // namespace nuq
