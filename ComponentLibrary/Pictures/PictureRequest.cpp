#include "Pictures/PictureRequest.h"

namespace componentlibrary {

PictureRequest::PictureRequest(HttpChannel& channel, const QUrl& address, QObject* parent)
    : RequestBase(channel, Operation::LoadThumbnail, address, parent)
{
    const bool isWeb = address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    if (!isWeb || address.host().isEmpty())
        Refuse(ErrorCode::ConfigurationBadEndpoint);
}

ErrorInfo PictureRequest::NoPicture(ErrorCode code) const
{
    ErrorInfo error = MakeError(code);
    error.httpStatus = 200;
    if (!m_contentType.isEmpty())
        error.evidence << QStringLiteral("content type: %1").arg(m_contentType);
    return error;
}

QByteArray PictureRequest::Accept() const
{
    return "image/*";
}

bool PictureRequest::IsAuthorized() const
{
    return false;
}

qint64 PictureRequest::LargestBody() const
{
    return kLargestBody;
}

ErrorInfo PictureRequest::ReadResult(QNetworkReply& reply)
{
    m_bytes = reply.readAll();
    m_contentType = QString::fromLatin1(reply.rawHeader("Content-Type").left(200));
    return ErrorInfo();
}

} // namespace componentlibrary
