#include "Commands/ThumbnailCommand.h"

#include "CommandLine/UsageError.h"
#include "Commands/PictureOutput.h"
#include "Commands/Texts.h"
#include "Errors/AddressText.h"
#include "Output/FieldList.h"
#include "Output/VisibleText.h"
#include "Pictures/ThumbnailLoader.h"
#include "Program/Session.h"
#include "Providers/UrlImageProvider.h"
#include "Records/IDetailedProjectComponent.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace nuq {

using componentlibrary::Thumbnail;
using componentlibrary::ThumbnailLoader;

namespace {

constexpr int kLargestSize = 4096;

/// The address for a size: the smallest picture that is not smaller, or the largest there is. 0 means the largest.
QString AddressForSize(const tarnnuq::IDetailedProjectComponent& component, int size)
{
    int best = 0;
    QString address;
    for (const auto& [text, urls] : component.Thumbnails) {
        const int pixels = QString::fromStdWString(text).toInt();
        const bool isEnough = size > 0 && pixels >= size;
        const bool bestIsEnough = size > 0 && best >= size;
        const bool isBetter = isEnough && bestIsEnough ? pixels < best : isEnough || (!bestIsEnough && pixels > best);
        if (!urls.empty() && isBetter) {
            best = pixels;
            address = QString::fromStdWString(urls.front());
        }
    }
    return address.isEmpty() ? QString::fromStdWString(component.Thumbnail) : address;
}

/// Waits for a picture, with progress on a terminal; Ctrl-C gives it up.
Thumbnail Await(Session& session, ThumbnailLoader& loader, const QString& address)
{
    ProgressLine progress(session.Error(), session.ShowsProgress());
    QEventLoop loop;
    QTimer drawing;
    QObject::connect(&drawing, &QTimer::timeout, &loop,
        [&progress] { progress.Show(Say(QT_TRANSLATE_NOOP("Messages", "Waiting for the picture ..."))); });
    QObject::connect(&session.Interrupt(), &Interruption::Happened, &loop, &QEventLoop::quit);
    Thumbnail result;
    result.error.code = componentlibrary::ErrorCode::Cancelled;
    result.error.operation = componentlibrary::Operation::LoadThumbnail;
    const ThumbnailLoader::Ticket ticket = loader.Load(address, [&result, &loop](const Thumbnail& thumbnail) {
        result = thumbnail;
        loop.quit();
    });
    if (session.ShowsProgress())
        drawing.start(100);
    if (!Interruption::HasHappened())
        loop.exec();
    return result;
}

/// The picture as hosts get it: the file is there and whole, so the library answers from it inside the call.
QImage ImageOfProvider(const Thumbnail& thumbnail)
{
    if (thumbnail.file.isEmpty())
        return thumbnail.image;
    QImage provided;
    tarnnuq::UrlImageProvider provider(nullptr);
    QObject::connect(&provider, &tarnnuq::UrlImageProvider::OnProvided,
        [&provided](
            const std::wstring&, const std::shared_ptr<QImage>& image) { provided = image ? *image : QImage(); });
    provider.Provide(thumbnail.url.toStdWString());
    return provided.isNull() ? thumbnail.image : provided;
}

/// The bytes as they came when the picture is wanted just so, else written anew.
QByteArray BytesFor(const Thumbnail& thumbnail, const QImage& image, const QByteArray& format)
{
    QFile kept(thumbnail.file);
    const bool isAsItCame = image.size() == thumbnail.image.size() && format == thumbnail.format;
    if (isAsItCame && kept.open(QIODevice::ReadOnly))
        return kept.readAll();
    return PictureBytes(image, format);
}

struct Description
{
    const Thumbnail& thumbnail;
    QString file;
    QByteArray format;
    QSize size;
};

void ShowFields(Session& session, const Description& what)
{
    FieldList fields;
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Address")),
        VisibleText(componentlibrary::AddressText(QUrl(what.thumbnail.url))));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Size")),
        std::to_string(what.size.width()) + " x " + std::to_string(what.size.height()));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Format")), what.format.toStdString());
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "From the cache")), YesNo(what.thumbnail.isFromCache));
    fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "Cache file")), VisibleText(what.thumbnail.file));
    if (!what.file.isEmpty())
        fields.Add(Title(QT_TRANSLATE_NOOP("Titles", "File")), VisibleText(what.file));
    session.Out().Write(fields.Text(session.Look()));
}

void WriteThumbnailDocument(Session& session, const Description& what)
{
    JsonWriter json;
    json.BeginObject();
    json.Member("schema", kSchema);
    json.Key("thumbnail");
    json.BeginObject();
    json.Member("address", componentlibrary::AddressText(QUrl(what.thumbnail.url)));
    json.Member("cacheFile", what.thumbnail.file);
    json.Member("file", what.file);
    json.Member("format", QString::fromLatin1(what.format));
    json.Member("height", what.size.height());
    json.Member("isFromCache", what.thumbnail.isFromCache);
    json.Member("width", what.size.width());
    json.EndObject();
    json.EndObject();
    session.WriteDocument(json);
}

void Describe(Session& session, const Description& what)
{
    if (session.Options().json)
        WriteThumbnailDocument(session, what);
    else
        ShowFields(session, what);
}

} // namespace

const CommandSpec& ThumbnailCommand::Spec() const
{
    // clang-format off
    static const CommandSpec spec = {
        "thumbnail",
        QT_TRANSLATE_NOOP("CommandTable", "Fetch the thumbnail of a component, or a picture by its address"),
        QT_TRANSLATE_NOOP("CommandTable", "The picture is kept in the cache, from where it comes the next time, also offline."),
        {{"WHAT", QT_TRANSLATE_NOOP("CommandTable", "The id of a component, or an address that begins with http:// or https://")}},
        {
            {"--output", "-o", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Write the picture there, in the format that the suffix names; - is standard output")},
            {"--size", "", "PIXELS", QT_TRANSLATE_NOOP("CommandTable", "Longest side, 1 to 4096: a larger picture is made smaller")},
            {"--project", "-p", "ID", QT_TRANSLATE_NOOP("CommandTable", "The component is one of this project's library")},
        },
        {
            {"nuq thumbnail ID -o pump.png", QT_TRANSLATE_NOOP("CommandTable", "the largest thumbnail of a component, as a file")},
            {"nuq thumbnail ID --size 64 -o - | display", QT_TRANSLATE_NOOP("CommandTable", "a small one, for another program")},
            {"nuq thumbnail https://HOST/PATH.png --json", QT_TRANSLATE_NOOP("CommandTable", "into the cache only, and say where it lies")},
        },
    };
    // clang-format on
    return spec;
}

void ThumbnailCommand::Bind(OptionBinder& binder)
{
    binder.Argument("WHAT", m_options.what);
    binder.Text("--output", m_options.output);
    binder.Number("--size", m_options.size, 1, kLargestSize);
    binder.Text("--project", m_options.projectId);
}

void ThumbnailCommand::Check() const
{
    if (!IsAddress())
        return;
    const QUrl address(m_options.what);
    const bool isWeb = address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    if (!isWeb || address.host().isEmpty())
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "\"%1\" is no address of the web.")).arg(m_options.what));
    if (!m_options.projectId.isEmpty())
        throw UsageError(Say(QT_TRANSLATE_NOOP("Messages", "--project goes with the id of a component only.")));
}

bool ThumbnailCommand::IsAddress() const
{
    return m_options.what.contains(QLatin1String("://"));
}

bool ThumbnailCommand::WritesToStandardOutput() const
{
    return m_options.output == QLatin1String("-");
}

bool ThumbnailCommand::FindAddress(Session& session, QString& address, ExitCode& code) const
{
    if (IsAddress()) {
        address = m_options.what;
        return true;
    }
    const auto request = session.Catalogue().Component(m_options.what, m_options.projectId);
    if (!session.Await(*request)) {
        code = session.Fail(request->Error());
        return false;
    }
    address = AddressForSize(*request->Result(), m_options.size);
    if (!address.isEmpty())
        return true;
    code = session.Fail(ExitCode::NotFound, "thumbnail.none",
        Say(QT_TRANSLATE_NOOP("Messages", "The component \"%1\" has no thumbnail.")).arg(m_options.what));
    return false;
}

ExitCode ThumbnailCommand::Run(Session& session)
{
    if (WritesToStandardOutput() && session.Options().json)
        return session.Fail(ExitCode::Usage, "usage",
            Say(QT_TRANSLATE_NOOP("Messages", "--json and --output - cannot be used together.")));
    AllowPicturePlugins();
    if (WrittenFormat(m_options.output).isEmpty())
        return session.Fail(ExitCode::Usage, "usage",
            Say(QT_TRANSLATE_NOOP("Messages", "The suffix of \"%1\" names none of the picture formats %2."))
                .arg(m_options.output, WrittenFormats()));
    QString address;
    ExitCode code = ExitCode::Done;
    if (!FindAddress(session, address, code))
        return code;
    ThumbnailLoader loader(session.Catalogue().Channel());
    const Thumbnail thumbnail = Await(session, loader, address);
    if (thumbnail.error.IsError())
        return session.Fail(thumbnail.error);
    return Deliver(session, thumbnail);
}

ExitCode ThumbnailCommand::Deliver(Session& session, const Thumbnail& thumbnail) const
{
    const QImage whole = ImageOfProvider(thumbnail);
    if (m_options.output.isEmpty()) {
        Describe(session, {thumbnail, QString(), thumbnail.format, whole.size()});
        return ExitCode::Done;
    }
    const QImage image = m_options.size > 0 ? componentlibrary::FitPicture(whole, m_options.size) : whole;
    const QByteArray format = WrittenFormat(m_options.output);
    const QByteArray bytes = BytesFor(thumbnail, image, format);
    if (WritesToStandardOutput()) {
        session.Out().Write(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        return ExitCode::Done;
    }
    const QString fault = WriteWholeFile(m_options.output, bytes);
    if (!fault.isEmpty())
        return session.Fail(ExitCode::Failed, "file.not_written",
            Say(QT_TRANSLATE_NOOP("Messages", "The file \"%1\" could not be written: %2."))
                .arg(m_options.output, fault));
    Describe(session, {thumbnail, m_options.output, format, image.size()});
    return ExitCode::Done;
}

} // namespace nuq
