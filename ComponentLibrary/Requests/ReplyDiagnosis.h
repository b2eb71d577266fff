#pragma once

#include "Errors/ErrorInfo.h"

#include <QList>
#include <QSslError>

class QNetworkReply;

namespace componentlibrary {

/**
 * Whether a finished reply may hold data at all, judged before anybody parses it: no transport error, status 200,
 * a body of the announced length that begins like a JSON object.
 *
 * Fills code, status, the service's own code and message (read from the body of a refusal when that is the service's
 * envelope), the moment of the next try, and the evidence. Reads from the body only when it finds an error.
 * @param tlsErrors what was found wrong with the certificate, worst cause decides
 * @return ErrorCode::None in `code` when the body may be parsed
 */
ErrorInfo DiagnoseReply(QNetworkReply& reply, const QList<QSslError>& tlsErrors);

/**
 * What a handler's error text says about a reply that DiagnoseReply let pass: an unreadable body, or an envelope
 * whose code is not success (the code and the message are taken out of the text).
 */
ErrorInfo DiagnoseHandlerText(const QString& text);

/**
 * Whether the reply announced more bytes than have come. Qt nearly always reports that itself; a download that keeps
 * what it gets is checked all the same. False when no length was announced, or the body came packed: then the length
 * says nothing about it.
 * @param received bytes of the body, read or not
 */
bool IsCutShort(const QNetworkReply& reply, qint64 received);

/** Whether sending the request again soon may help: connection faults, 429, 502, 503 and 504. */
bool IsPassing(const ErrorInfo& error);

} // namespace componentlibrary
