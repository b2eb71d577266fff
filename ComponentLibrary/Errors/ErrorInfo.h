#pragma once

#include "Errors/ErrorCode.h"
#include "Errors/Operation.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace componentlibrary {

/**
 * Everything known about one failed request: enough for a sentence on screen, for a script and for a bug report.
 *
 * A value without secrets: the address carries neither user info nor token parameters. Copy it freely between
 * threads. The sentences are made when they are asked for (ErrorTexts), so they follow a change of language.
 */
struct ErrorInfo
{
    ErrorCode code = ErrorCode::None;
    Operation operation = Operation::CheckService;
    QString address;       ///< the URL that was asked, cleaned of secrets; empty when none could be built
    int httpStatus = 0;    ///< 0 when no HTTP answer arrived
    QString serverCode;    ///< "code" of the service's own envelope, when the answer held one
    QString serverMessage; ///< "message" of that envelope, at most 1000 characters, otherwise as sent
    QString original;      ///< the library's or Qt's own English text, for a report
    QStringList evidence;  ///< further facts, one a line: certificate subject, issuer and dates, the content type
    QDateTime retryAt;     ///< earliest moment of the next try (UTC) when the server named one, else invalid
    int tries = 0;         ///< how often the request was sent
    int request = 0;       ///< the request's number in the log; 0 when none was sent

    /** Whether there is an error at all. */
    bool IsError() const { return code != ErrorCode::None; }
};

} // namespace componentlibrary
