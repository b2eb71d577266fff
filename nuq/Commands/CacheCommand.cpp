#include "Commands/CacheCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/Texts.h"
#include "Output/FieldList.h"
#include "Output/VisibleText.h"
#include "Pictures/ThumbnailCache.h"
#include "Program/Session.h"

#include <QLocale>

#include <optional>

namespace nuq {

using componentlibrary::CacheUsage;
using componentlibrary::ThumbnailCache;

namespace {

std::string Amount(const CacheUsage& usage)
{
    const QString bytes = QLocale().formattedDataSize(usage.bytes, 1);
    return Say(QT_TRANSLATE_NOOP("Messages", "%1 (%2 files)")).arg(bytes).arg(usage.files).toStdString();
}

void ShowFields(Session& session, const ThumbnailCache& cache, const std::optional<CacheUsage>& removed)
{
    FieldList fields;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Thumbnail folder")), VisibleText(cache.Folder()));
    if (removed)
        fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Removed")), Amount(*removed));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Size")), Amount(cache.Measure()));
    fields.Add(
        Title(QT_TRANSLATE_NOOP("Titles", "Limit")), QLocale().formattedDataSize(cache.Limit(), 1).toStdString());
    session.Out().Write(fields.Text(session.Look()));
}

void WriteCacheDocument(Session& session, const ThumbnailCache& cache, const std::optional<CacheUsage>& removed)
{
    const CacheUsage usage = cache.Measure();
    JsonWriter json;
    json.BeginObject();
    json.Key("cache");
    json.BeginObject();
    json.Member("bytes", std::int64_t{usage.bytes});
    json.Member("files", usage.files);
    json.Member("folder", cache.Folder());
    json.Member("limit", std::int64_t{cache.Limit()});
    json.EndObject();
    if (removed) {
        json.Key("removed");
        json.BeginObject();
        json.Member("bytes", std::int64_t{removed->bytes});
        json.Member("files", removed->files);
        json.EndObject();
    }
    json.Member("schema", kSchema);
    json.EndObject();
    session.WriteDocument(json);
}

} // namespace

const CommandSpec& CacheCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "cache",
        QT_TRANSLATE_NOOP("CommandTable", "Show how much the thumbnail cache holds, or empty it"),
        QT_TRANSLATE_NOOP("CommandTable", "The cache looks after itself: beyond its limit the pictures go first that were not used for longest. Family files are not in it."),
        {{"ACTION", QT_TRANSLATE_NOOP("CommandTable", "\"clear\" removes all thumbnails; without it nothing is changed"), false}},
        {},
        {
            {"nuq cache", QT_TRANSLATE_NOOP("CommandTable", "folder, size and limit")},
            {"nuq cache clear", QT_TRANSLATE_NOOP("CommandTable", "remove all thumbnails")},
        },
    };
    // clang-format on
    return spec;
}

void CacheCommand::Bind(OptionBinder& binder)
{
    binder.Argument("ACTION", m_action);
}

void CacheCommand::Check() const
{
    if (!m_action.isEmpty() && m_action != QLatin1String("clear"))
        throw UsageError(
            Say(QT_TRANSLATE_NOOP("Messages", "ACTION has to be \"clear\", but it is \"%1\".")).arg(m_action));
}

ExitCode CacheCommand::Run(Session& session)
{
    const ThumbnailCache cache;
    std::optional<CacheUsage> removed;
    if (!m_action.isEmpty())
        removed = cache.Clear();
    if (session.Options().json)
        WriteCacheDocument(session, cache, removed);
    else
        ShowFields(session, cache, removed);
    return ExitCode::Done;
}

} // namespace nuq
