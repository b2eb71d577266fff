#include "Commands/SearchCommand.h"

#include "Commands/LocalLibrary.h"
#include "Commands/Texts.h"
#include "ComponentDatabase/HostObjects/LocalDatabase.h"
#include "Output/VisibleText.h"

namespace nuq {
namespace {

using componentdatabase::SearchHit;
using componentdatabase::SearchMatch;
using componentdatabase::SearchResult;

constexpr int kMostHits = 10000;

const char* MatchId(SearchMatch match)
{
    switch (match) {
    case SearchMatch::Code:
        return "code";
    case SearchMatch::NamePrefix:
        return "namePrefix";
    case SearchMatch::Name:
        return "name";
    case SearchMatch::Pinyin:
        return "pinyin";
    case SearchMatch::Value:
        break;
    }
    return "value";
}

const char* KindId(SearchHit::Kind kind)
{
    switch (kind) {
    case SearchHit::Kind::Discipline:
        return "discipline";
    case SearchHit::Kind::Category:
        return "category";
    case SearchHit::Kind::Component:
        break;
    }
    return "component";
}

std::string MatchText(SearchMatch match)
{
    switch (match) {
    case SearchMatch::Code:
        return Title(QT_TRANSLATE_NOOP("Titles", "code"));
    case SearchMatch::NamePrefix:
    case SearchMatch::Name:
        return Title(QT_TRANSLATE_NOOP("Titles", "name"));
    case SearchMatch::Pinyin:
        return Title(QT_TRANSLATE_NOOP("Titles", "pinyin"));
    case SearchMatch::Value:
        break;
    }
    return Title(QT_TRANSLATE_NOOP("Titles", "value"));
}

std::string KindText(SearchHit::Kind kind)
{
    switch (kind) {
    case SearchHit::Kind::Discipline:
        return Title(QT_TRANSLATE_NOOP("Titles", "discipline"));
    case SearchHit::Kind::Category:
        return Title(QT_TRANSLATE_NOOP("Titles", "category"));
    case SearchHit::Kind::Component:
        break;
    }
    return Title(QT_TRANSLATE_NOOP("Titles", "component"));
}

void ShowTable(Session& session, const SearchResult& result)
{
    const bool isChinese = session.Options().language == QLatin1String("zh");
    Table table =
        session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "KIND"))}, {Title(QT_TRANSLATE_NOOP("Titles", "CODE"))},
            {Title(QT_TRANSLATE_NOOP("Titles", "NAME")), Table::Align::Left, true},
            {Title(QT_TRANSLATE_NOOP("Titles", "FOUND BY"))}});
    for (const SearchHit& hit : result.hits) {
        table.AddRow(
            {KindText(hit.kind), VisibleText(hit.code), VisibleText(hit.name.In(isChinese)), MatchText(hit.match)});
    }
    session.Out().Write(table.Take());
}

void WriteResult(Session& session, const QString& text, const SearchResult& result)
{
    JsonWriter json;
    json.BeginObject();
    json.List("hits", result.hits, [](JsonWriter& list, const SearchHit& hit) {
        list.BeginObject();
        list.Member("categoryCode", hit.categoryCode);
        list.Member("code", hit.code);
        list.Member("foundBy", MatchId(hit.match));
        list.Member("kind", KindId(hit.kind));
        list.Member("nameEn", hit.name.english);
        list.Member("nameZh", hit.name.chinese);
        list.EndObject();
    });
    json.Member("schema", kSchema);
    json.Member("text", text);
    json.Member("total", static_cast<std::int64_t>(result.total));
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& SearchCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "search",
        QT_TRANSLATE_NOOP("CommandTable", "Search the library on this machine"),
        QT_TRANSLATE_NOOP("CommandTable", "Needs no network. Finds disciplines, categories and components by code, Chinese or English name, pinyin or its initials, family types and values, best first. All words of the text have to occur."),
        {{"TEXT", QT_TRANSLATE_NOOP("CommandTable", "What to search for, in either language")}},
        {
            {"--limit", "-n", "NUMBER", QT_TRANSLATE_NOOP("CommandTable", "List this many at most; 20 by default")},
        },
        {
            {"nuq search 水泵", QT_TRANSLATE_NOOP("CommandTable", "pumps, by their Chinese name")},
            {"nuq search shuibeng", QT_TRANSLATE_NOOP("CommandTable", "the same by its sound; \"sb\" by its initials")},
            {"nuq search \"gate valve DN50\" --json | jq -r '.hits[].code'", QT_TRANSLATE_NOOP("CommandTable", "codes, for a script")},
        },
    };
    // clang-format on
    return spec;
}

void SearchCommand::Bind(OptionBinder& binder)
{
    binder.Argument("TEXT", m_options.text);
    binder.Number("--limit", m_options.limit, 1, kMostHits);
}

ExitCode SearchCommand::Run(Session& session)
{
    const componentdatabase::ComponentDatabase* const database = session.Host().Database().Get();
    if (database == nullptr)
        return FailLocally(session);
    componentdatabase::DatabaseReason reason;
    const SearchResult result = database->Search(m_options.text, m_options.limit, reason);
    if (reason)
        return FailLocally(session, reason);
    if (session.Options().json)
        WriteResult(session, m_options.text, result);
    else
        ShowTable(session, result);
    const auto shown = static_cast<int>(result.hits.size());
    if (result.hits.empty())
        session.Note(Say(QT_TRANSLATE_NOOP("Messages", "Nothing in the library on this machine matches \"%1\"."))
                         .arg(m_options.text));
    else if (result.total > shown)
        session.Note(Say(QT_TRANSLATE_NOOP("Messages", "%1 of %2 are listed; --limit lists more."))
                         .arg(QString::number(shown), QString::number(result.total)));
    return ExitCode::Done;
}

} // namespace nuq
