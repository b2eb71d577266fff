#include "Diagnosis/ImageProbe.h"

#include "Errors/AddressText.h"
#include "Requests/HttpChannel.h"
#include "Requests/ReplyDiagnosis.h"

#include <QNetworkRequest>
#include <QtEndian>

namespace componentlibrary {
namespace {

/// By the marks at both ends: a reply without a length that was cut off counts as complete in Qt.
bool IsWholePicture(const QByteArray& body)
{
    if (body.startsWith("\x89PNG\r\n\x1a\n"))
        return body.endsWith("IEND\xae\x42\x60\x82");
    if (body.startsWith("\xff\xd8\xff"))
        return body.endsWith("\xff\xd9");
    if (body.startsWith("GIF8"))
        return body.endsWith(';');
    if (body.startsWith("RIFF") && body.mid(8, 4) == "WEBP")
        return qFromLittleEndian<quint32>(body.constData() + 4) + qint64{8} <= body.size();
    return body.left(1024).contains("<svg") && body.trimmed().endsWith("</svg>");
}

} // namespace

ImageProbe::ImageProbe(HttpChannel& channel, const QUrl& address, QObject* parent)
    : QObject(parent), m_channel(channel), m_address(address)
{
    m_timeLimit.setSingleShot(true);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] { End(ErrorCode::NetworkTimeout); });
}

ImageProbe::~ImageProbe()
{
    if (m_reply != nullptr) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
    }
}

void ImageProbe::Start()
{
    m_reply = m_channel.Manager().get(QNetworkRequest(m_address));
    connect(m_reply, &QNetworkReply::finished, this, &ImageProbe::OnFinished);
    m_timeLimit.start(m_channel.Settings().timeLimit);
}

void ImageProbe::OnFinished()
{
    const QByteArray body = m_reply->peek(m_reply->bytesAvailable());
    const bool isWhole = m_reply->error() == QNetworkReply::NoError && !IsCutShort(*m_reply, body.size());
    if (isWhole && IsWholePicture(body))
        return End(ErrorCode::None);
    ErrorInfo error = DiagnoseReply(*m_reply, {});
    m_error.httpStatus = error.httpStatus;
    m_error.original = error.original;
    m_error.evidence = error.evidence;
    End(error.IsError() ? error.code : ErrorCode::ServerNotJson);
}

void ImageProbe::End(ErrorCode code)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_timeLimit.stop();
    m_error.code = code;
    m_error.operation = Operation::CheckService;
    m_error.address = AddressText(m_address);
    m_error.tries = 1;
    emit Finished();
}

} // namespace componentlibrary
