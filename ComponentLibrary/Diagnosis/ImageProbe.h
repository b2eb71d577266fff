#pragma once

#include "Errors/ErrorInfo.h"

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

namespace componentlibrary {

class HttpChannel;

/**
 * Fetches one picture, as views do it: without the Authorization header. Ends once, with a picture or an error.
 * Whether the body is a picture is told by its first and last bytes (PNG, JPEG, GIF, WebP,
 * SVG), so that one that was cut off is none.
 */
class ImageProbe : public QObject
{
    Q_OBJECT

public:
    ImageProbe(HttpChannel& channel, const QUrl& address, QObject* parent = nullptr);
    ~ImageProbe() override;

    void Start();
    const ErrorInfo& Error() const { return m_error; }

signals:
    void Finished();

private:
    void OnFinished();
    void End(ErrorCode code);

    HttpChannel& m_channel;
    const QUrl m_address;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timeLimit;
    ErrorInfo m_error;
    bool m_hasEnded = false;
};

} // namespace componentlibrary
