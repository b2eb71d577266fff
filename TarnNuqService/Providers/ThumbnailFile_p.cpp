#include "Providers/ThumbnailFile_p.h"

#include "tarnnuq/PathUtils.h"

#include <QString>
#include <QUrl>

namespace tarnnuq {

std::wstring ThumbnailFilePath(const std::wstring& url)
{
    return PathUtils::GetThumbnailDownloadFilePath(url, L".png");
}

QNetworkRequest ThumbnailRequest(const std::wstring& url)
{
    QNetworkRequest request;
    request.setUrl(QUrl(QString::fromStdWString(url), QUrl::TolerantMode));
    return request;
}

} // namespace tarnnuq
