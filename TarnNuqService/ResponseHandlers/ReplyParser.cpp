#include "ResponseHandlers/ReplyParser.h"

#include "ResponseHandlers/RequestErrorText_p.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <QUrl>

namespace tarnnuq {

namespace {

void LogRequestError(const QString& url, const QString& text, ReplyWording wording)
{
    if (wording == ReplyWording::Plain) {
        INuqLogger::Get()->Error(QString(QLatin1String("fail to get response from ") + url + QLatin1Char('.') + text));
        return;
    }
    INuqLogger::Get()->Error(
        {QString(QLatin1String("fail to get response from ") + url + QLatin1String("\r\n")), text});
}

// QString::fromUtf8(QByteArray) would end at the first NUL; the log shows the whole body.
QString BodyText(const QByteArray& body)
{
    return QString::fromUtf8(body.constData(), body.size());
}

// The log text is twice the size of the body: it lives in here only, so that it is gone before the body is parsed.
void LogSuccess(const QString& url, const QByteArray& body, ReplyWording wording)
{
    if (wording == ReplyWording::Plain) {
        INuqLogger::Get()->Info(QString(
            QLatin1String("succeed to get response from ") + url + QLatin1String(". response body:") + BodyText(body)));
        return;
    }
    INuqLogger::Get()->Info({QString(QLatin1String("succeed to get response from ") + url + QLatin1String("\r\n")),
        QString(QLatin1String("response body:") + BodyText(body))});
}

bool Fail(const QString& text, std::wstring& error)
{
    INuqLogger::Get()->Error(text);
    error = text.toStdWString();
    return false;
}

bool ParseJson(const QByteArray& bytes, QJsonObject& body, std::wstring& error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        return Fail(QStringLiteral("fail to parse response body:error type - %1").arg(int(parseError.error)), error);
    }
    body = document.object();
    return true;
}

} // namespace

bool ReplyParser::Parse(QNetworkReply* reply, ReplyWording wording, QJsonObject& body, std::wstring& error)
{
    if (!reply) {
        error = L"Reply is null!";
        return false;
    }
    if (reply->error() != QNetworkReply::NoError) {
        const QString text = RequestErrorText(
            wording == ReplyWording::Plain ? PlainRequestErrorPattern : CompositeRequestErrorPattern, *reply);
        LogRequestError(reply->url().toString(), text, wording);
        error = text.toStdWString();
        return false;
    }
    const QByteArray bytes = reply->readAll();
    LogSuccess(reply->url().toString(), bytes, wording);
    return ParseJson(bytes, body, error);
}

bool ReplyParser::CheckEnvelope(const QJsonObject& body, std::wstring& error)
{
    const QString code = body.value(QLatin1String("code")).toString();
    if (code.trimmed().toLower() == QLatin1String("success")) {
        return true;
    }
    const QString message = body.value(QLatin1String("message")).toString();
    return Fail(QStringLiteral("internal request error: custom code - %1, message - %2").arg(code, message), error);
}

} // namespace tarnnuq
