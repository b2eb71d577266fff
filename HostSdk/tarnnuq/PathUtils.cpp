#include "tarnnuq/PathUtils.h"

#include "hostsdk/HostServices.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>
#include <utility>

namespace tarnnuq {

namespace {

QString CacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/thumbnails");
}

QString DigestOf(const std::wstring& url)
{
    const QByteArray bytes = QString::fromStdWString(url).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

std::wstring PathInCacheFolder(const std::wstring& url, const std::wstring& extension)
{
    const QDir folder(CacheFolder());
    folder.mkpath(QStringLiteral("."));
    return folder.absoluteFilePath(DigestOf(url) + QString::fromStdWString(extension)).toStdWString();
}

} // namespace

PathUtils::~PathUtils() = default;

std::wstring PathUtils::GetThumbnailDownloadFilePath(std::wstring url, std::wstring extension)
{
    const PathUtils* const installed = hostsdk::Installed().paths;
    if (installed == nullptr) {
        return PathInCacheFolder(url, extension);
    }
    return installed->DoGetThumbnailDownloadFilePath(std::move(url), std::move(extension));
}

} // namespace tarnnuq
