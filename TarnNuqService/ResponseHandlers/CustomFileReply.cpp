#include "ResponseHandlers/CustomFileReply.h"

#include "ResponseHandlers/RequestErrorText_p.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QFile>
#include <QUrl>

namespace tarnnuq {

CustomFileReply::CustomFileReply(QObject* parent) : CustomReplyBase(parent) {}

CustomFileReply::~CustomFileReply() = default;

void CustomFileReply::SetSaveFilePath(const std::wstring& path)
{
    m_saveFilePath = path;
}

std::wstring CustomFileReply::GetSaveFilePath() const
{
    return m_saveFilePath;
}

void CustomFileReply::PrivateHandleReply()
{
    if (!m_reply) {
        m_error = L"Reply is null!";
        return;
    }
    // Called from a signal of the network reply, which no exception may cross.
    try {
        if (!ReportRequestError()) {
            SaveBody();
        }
    } catch (...) {
        // A request error that is told already stays: only its record is lost.
        m_error = m_error.empty() ? L"error on saving file." : m_error;
    }
}

bool CustomFileReply::ReportRequestError()
{
    if (m_reply->error() == QNetworkReply::NoError) {
        return false;
    }
    const QString text = RequestErrorText(PlainRequestErrorPattern, *m_reply);
    m_error = text.toStdWString();
    INuqLogger::Get()->Error(QString(
        QLatin1String("fail to get response from ") + m_reply->url().toString() + QLatin1String("\r\n") + text));
    return true;
}

void CustomFileReply::SaveBody()
{
    QFile file(QString::fromStdWString(m_saveFilePath));
    if (!file.open(QIODevice::WriteOnly)) {
        m_error = L"fail to open file to write.";
        return;
    }
    const QByteArray body = m_reply->readAll();
    if (file.write(body) != body.size() || !file.flush()) {
        m_error = L"error on saving file.";
    }
}

} // namespace tarnnuq
