#include "Commands/LegendsCommand.h"

#include "Commands/LocalLibrary.h"
#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "PropertySvcs/PropertyService.h"

#include <algorithm>
#include <iterator>

namespace nuq {

using tarnnuq::ILegend;

namespace {

constexpr int kPageSize = 100;

const char* ViewId(ILegend::LegendType view)
{
    switch (view) {
    case ILegend::Plan:
        return "plan";
    case ILegend::Elevation:
        return "elevation";
    case ILegend::Profile:
        return "profile";
    case ILegend::Unknown:
        break;
    }
    return "unknown";
}

/// The library joins the paths of local legends with backslashes on every system.
QString PictureOf(const ILegend& legend, bool isLocal)
{
    QString picture = QString::fromStdWString(legend.Thumbnail);
    return isLocal ? picture.replace(QLatin1Char('\\'), QLatin1Char('/')) : picture;
}

void WriteLegend(JsonWriter& json, const ILegend& legend, bool isLocal)
{
    json.BeginObject();
    json.Key("id");
    json.NumberAsText(legend.Id);
    json.Member("name", legend.Name);
    json.Member("picture", PictureOf(legend, isLocal));
    json.Member("standardSource", legend.StandardSource);
    json.Member("view", ViewId(legend.Type));
    json.EndObject();
}

} // namespace

const CommandSpec& LegendsCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "legends",
        QT_TRANSLATE_NOOP("CommandTable", "List the legends of a category, its placeholder drawings"),
        QT_TRANSLATE_NOOP("CommandTable", "By default from the library on this machine, which needs no network."),
        {{"CODE", QT_TRANSLATE_NOOP("CommandTable", "The code of the category")}},
        {
            {"--view", "", "VIEW", QT_TRANSLATE_NOOP("CommandTable", "Only the legends of this view; by default of all three"), {"plan", "elevation", "profile"}},
            {"--cloud", "", "", QT_TRANSLATE_NOOP("CommandTable", "Take the legends of the cloud")},
        },
        {
            {"nuq legends WAT.PIPE.GALV --view plan", QT_TRANSLATE_NOOP("CommandTable", "the plan legends of an end category")},
            {"nuq legends WAT.PIPE.GALV --cloud --json | jq -r '.legends[].picture'", QT_TRANSLATE_NOOP("CommandTable", "addresses of the pictures, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void LegendsCommand::Bind(OptionBinder& binder)
{
    binder.Argument("CODE", m_options.code);
    binder.Text("--view", m_options.view);
    binder.Switch("--cloud", m_options.cloud);
}

std::vector<ILegend::LegendType> LegendsCommand::Views() const
{
    std::vector<ILegend::LegendType> views;
    for (const ILegend::LegendType view : {ILegend::Plan, ILegend::Elevation, ILegend::Profile}) {
        if (m_options.view.isEmpty() || m_options.view == QLatin1String(ViewId(view)))
            views.push_back(view);
    }
    return views;
}

ExitCode LegendsCommand::Run(Session& session)
{
    return m_options.cloud ? RunInCloud(session) : RunLocally(session);
}

ExitCode LegendsCommand::RunLocally(Session& session)
{
    if (!HasLocalLibrary(session))
        return FailLocally(session);
    tarnnuq::PropertyService* const service = tarnnuq::PropertyService::Get();
    if (service->GetCategoryByCode(m_options.code.toStdWString()) == nullptr)
        return FailUnknownCategory(session, m_options.code);
    Legends legends;
    for (const ILegend::LegendType view : Views()) {
        const Legends found = service->GetLegends(m_options.code.toStdWString(), view);
        legends.insert(legends.end(), found.begin(), found.end());
    }
    return Show(session, legends);
}

ExitCode LegendsCommand::RunInCloud(Session& session)
{
    Legends legends;
    for (const ILegend::LegendType view : Views()) {
        for (int page = 1;; ++page) {
            const auto request = session.Catalogue().Legends(
                m_options.code, ILegend::GetLegendTypeInDigitalModule(view), page, kPageSize);
            if (!session.Await(*request))
                return session.Fail(request->Error());
            const auto& list = request->Result().List;
            std::copy_if(list.begin(), list.end(), std::back_inserter(legends),
                [](const auto& legend) { return legend != nullptr; });
            // The total comes from outside: an empty page ends the list whatever it says.
            if (list.empty() || page >= (request->Result().TotalCount + kPageSize - 1) / kPageSize)
                break;
        }
    }
    return Show(session, legends);
}

ExitCode LegendsCommand::Show(Session& session, const Legends& legends) const
{
    if (session.Options().json) {
        JsonWriter json;
        json.BeginObject();
        json.Member("categoryCode", m_options.code);
        json.List("legends", legends,
            [this](JsonWriter& list, const auto& legend) { WriteLegend(list, *legend, !m_options.cloud); });
        json.Member("schema", kSchema);
        json.EndObject();
        session.WriteDocument(json);
    } else {
        Table table =
            session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "ID"))}, {Title(QT_TRANSLATE_NOOP("Titles", "VIEW"))},
                {Title(QT_TRANSLATE_NOOP("Titles", "NAME"))}, {Title(QT_TRANSLATE_NOOP("Titles", "PICTURE"))}});
        for (const auto& legend : legends) {
            table.AddRow({std::to_string(legend->Id), ViewId(legend->Type), VisibleText(legend->Name),
                VisibleText(PictureOf(*legend, !m_options.cloud))});
        }
        session.Out().Write(table.Take());
    }
    if (legends.empty())
        session.Note(Say(QT_TRANSLATE_NOOP("Messages", "The category has no legends; end categories have them.")));
    return ExitCode::Done;
}

} // namespace nuq
