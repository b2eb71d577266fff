#pragma once

#include "Requests/RequestBase.h"

namespace componentlibrary {

/**
 * Asks for the bytes of a picture. Pictures are public: the request carries no Authorization header, as those of the
 * library's image providers. Whether the bytes are a picture is for the receiver to find out.
 */
class PictureRequest final : public RequestBase
{
public:
    /** Longer answers end as ErrorCode::ServerTooLarge. */
    static constexpr qint64 kLargestBody = qint64{16} << 20;

    /** @param address of any scheme; one that is neither http nor https ends as ErrorCode::ConfigurationBadEndpoint */
    PictureRequest(HttpChannel& channel, const QUrl& address, QObject* parent = nullptr);

    /** The bytes; empty unless the request has succeeded. */
    const QByteArray& Bytes() const { return m_bytes; }

    /** The error of a request that has succeeded with bytes that turned out to be no usable picture. */
    ErrorInfo NoPicture(ErrorCode code) const;

private:
    QByteArray Accept() const override;
    bool IsAuthorized() const override;
    qint64 LargestBody() const override;
    ErrorInfo ReadResult(QNetworkReply& reply) override;

    QByteArray m_bytes;
    QString m_contentType;
};

} // namespace componentlibrary
