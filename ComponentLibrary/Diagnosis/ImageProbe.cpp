#include "Diagnosis/ImageProbe.h"

#include "Errors/AddressText.h"
#include "Requests/HttpChannel.h"
#include "Requests/ReplyDiagnosis.h"

#include <QNetworkRequest>

namespace componentlibrary {
namespace {

bool IsPicture(const QByteArray& start)
{
    const bool isXml = start.contains("<svg");
    return start.startsWith("\x89PNG\r\n\x1a\n") || start.startsWith("\xff\xd8\xff") || start.startsWith("GIF8") ||
           (start.startsWith("RIFF") && start.mid(8, 4) == "WEBP") || isXml;
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
    const QByteArray start = m_reply->peek(1024);
    if (m_reply->error() == QNetworkReply::NoError && IsPicture(start))
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
