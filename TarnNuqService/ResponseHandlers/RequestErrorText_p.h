#pragma once

#include <QNetworkReply>
#include <QString>

namespace tarnnuq {

/// The HTTP status of a reply; 0 when no response came.
inline int HttpStatus(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Fills a text such as "request error:http code - %1, message - %2" with a failed reply's status and error string.
inline QString RequestErrorText(const char* pattern, const QNetworkReply& reply)
{
    return QString::fromLatin1(pattern).arg(QString::number(HttpStatus(reply)), reply.errorString());
}

constexpr const char* PlainRequestErrorPattern = "request error:http code - %1, message - %2";
constexpr const char* CompositeRequestErrorPattern = "request error: http code - %1, message - %2";

} // namespace tarnnuq
