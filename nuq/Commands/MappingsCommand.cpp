#include "Commands/MappingsCommand.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"
#include "Records/ICategoryMapping.h"

namespace nuq {
namespace {

using tarnnuq::ICategoryMapping;

const char* MajorId(ICategoryMapping::MajorType major)
{
    switch (major) {
    case ICategoryMapping::Plumbing:
        return "plumbing";
    case ICategoryMapping::Hvac:
        return "hvac";
    case ICategoryMapping::Electrical:
        return "electrical";
    case ICategoryMapping::Unknown:
        break;
    }
    return "unknown";
}

std::string Joined(const std::vector<std::wstring>& names)
{
    std::string text;
    for (const std::wstring& name : names)
        text += (text.empty() ? "" : "; ") + VisibleText(name);
    return text;
}

void WriteMapping(JsonWriter& json, const ICategoryMapping& mapping)
{
    json.BeginObject();
    json.Member("categoryCode", mapping.CategoryCode);
    json.Key("categoryId");
    json.NumberAsText(mapping.CategoryId);
    json.Member("componentEditorCategoryId", mapping.ComponentEditorCategoryId);
    json.Member("major", MajorId(mapping.Major));
    json.Key("names");
    json.BeginArray();
    for (const std::wstring& name : mapping.Names)
        json.Text(std::wstring_view(name));
    json.EndArray();
    json.EndObject();
}

} // namespace

const CommandSpec& MappingsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "mappings",
        QT_TRANSLATE_NOOP("CommandTable", "List how the cloud's categories map onto the component editor's"),
        "",
        {},
        {},
        {
            {"nuq mappings --json | jq -r '.mappings[] | [.categoryCode, .componentEditorCategoryId] | @tsv'", QT_TRANSLATE_NOOP("CommandTable", "codes and editor ids, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void MappingsCommand::Bind(OptionBinder&) {}

ExitCode MappingsCommand::Run(Session& session)
{
    const auto request = session.Catalogue().Mappings();
    if (!session.Await(*request))
        return session.Fail(request->Error());
    const auto& mappings = request->Result();
    if (session.Options().json) {
        JsonWriter json;
        json.BeginObject();
        json.List("mappings", mappings, [](JsonWriter& list, const auto& mapping) { WriteMapping(list, *mapping); });
        json.Member("schema", kSchema);
        json.EndObject();
        session.WriteDocument(json);
        return ExitCode::Done;
    }
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "CODE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "EDITOR ID"))}, {Title(QT_TRANSLATE_NOOP("Titles", "MAJOR"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "NAMES")), Table::Align::Left, true}});
    for (const auto& mapping : mappings) {
        table.AddRow({VisibleText(mapping->CategoryCode), VisibleText(mapping->ComponentEditorCategoryId),
            MajorId(mapping->Major), Joined(mapping->Names)});
    }
    session.Out().Write(table.Take());
    return ExitCode::Done;
}

} // namespace nuq
