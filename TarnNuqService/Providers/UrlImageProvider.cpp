#include "Providers/UrlImageProvider.h"

#include "Auth/PlainAuthorization_p.h"
#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "Common/ReleaseReply.h"
#include "Providers/ThumbnailFile_p.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <new>
#include <optional>
#include <utility>

namespace tarnnuq {

namespace {

constexpr WarningSource ProvideSource{"Providers/UrlImageProvider.cpp", __LINE__, "tarnnuq::UrlImageProvider::Provide"};

/// What cannot be written is not cached, silently: the image itself is there.
void WriteCacheFile(const QString& filePath, const QByteArray& body) noexcept
{
    try {
        QFile file(filePath);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(body);
            file.close();
        }
    } catch (...) {
        return;
    }
}

/// Takes the image out of a finished reply and caches its bytes. Called from a signal of the reply, which no exception
/// may cross: without memory, bytes that cannot be read count as not come, and ones that cannot be decoded as no image.
/// @return what to answer; nothing when there is no image object to answer with
std::optional<std::shared_ptr<QImage>> TakeImage(QNetworkReply& reply, const QString& filePath) noexcept
{
    std::shared_ptr<QImage> spImage;
    try {
        if (reply.error() != QNetworkReply::NoError) {
            return spImage;
        }
        const QByteArray body = reply.readAll();
        WriteCacheFile(filePath, body);
        spImage = MakeRecord<QImage>();
        if (!spImage) {
            return std::nullopt;
        }
        spImage->loadFromData(body);
    } catch (...) {
        return spImage;
    }
    return spImage;
}

/// Deletes a network manager as soon as none of its replies' signals is being handled any more. Without memory for
/// that, it stays until the next one that comes here.
void ReleaseLater(std::shared_ptr<QNetworkAccessManager> manager) noexcept
{
    try {
        QNetworkAccessManager& context = *manager;
        QMetaObject::invokeMethod(
            &context, [manager] { Q_UNUSED(manager) }, Qt::QueuedConnection);
    } catch (const std::bad_alloc&) {
        static std::shared_ptr<QNetworkAccessManager> kept;
        kept.swap(manager);
    }
}

} // namespace

UrlImageProvider::UrlImageProvider(QObject* parent)
    : ImageProvider<std::wstring>(parent), m_spNetworkAccessManager(std::make_shared<QNetworkAccessManager>())
{
    // By the names in the signal's signature, so that queued connections and signal spies can copy them. Declaring
    // types of the standard library to Qt is left to hosts: there may be only one declaration in a program.
    qRegisterMetaType<std::wstring>("std::wstring");
    qRegisterMetaType<std::shared_ptr<QImage>>("std::shared_ptr<QImage>");
}

UrlImageProvider::~UrlImageProvider() = default;

void UrlImageProvider::Provide(std::wstring url)
{
    const QString filePath = QString::fromStdWString(ThumbnailFilePath(url));
    INuqLogger::Get()->Info(QString(QLatin1String("get image from ") + filePath));
    if (QFileInfo::exists(filePath)) {
        ProvideFromFile(std::move(url), filePath);
    } else {
        RequestImage(std::move(url), filePath);
    }
}

void UrlImageProvider::ConfigureAuthorization(QNetworkRequest& request) const
{
    SetPlainAuthorization(request);
}

void UrlImageProvider::ProvideFromFile(std::wstring url, const QString& filePath)
{
    const std::shared_ptr<QImage> spImage = MakeRecord<QImage>();
    if (!spImage) {
        WarnNull(ProvideSource, L"spImage 为空");
        return;
    }
    spImage->load(filePath);
    Q_EMIT OnProvided(std::move(url), spImage);
}

void UrlImageProvider::RequestImage(std::wstring url, const QString& filePath)
{
    const QNetworkRequest request = ThumbnailRequest(url);
    if (!m_spNetworkAccessManager) {
        WarnNull(ProvideSource, L"m_spNetworkAccessManager 为空");
        return;
    }
    QNetworkReply* reply = m_spNetworkAccessManager->get(request);
    if (!reply) {
        WarnNull(ProvideSource, L"reply 为空");
        return;
    }
    connect(reply, &QNetworkReply::finished, this,
        [this, reply, filePath, url = std::move(url)]() mutable { HandleReply(*reply, filePath, std::move(url)); });
}

void UrlImageProvider::HandleReply(QNetworkReply& reply, const QString& filePath, std::wstring url)
{
    // A receiver may delete this provider, but not the manager and the reply whose signal is being handled.
    std::shared_ptr<QNetworkAccessManager> manager = m_spNetworkAccessManager;
    if (const std::optional<std::shared_ptr<QImage>> answer = TakeImage(reply, filePath)) {
        Q_EMIT OnProvided(std::move(url), *answer);
    }
    ReleaseReply(reply);
    if (manager.use_count() == 1) {
        ReleaseLater(std::move(manager));
    }
}

} // namespace tarnnuq
