#include "Requests/RetryAfter.h"

#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <limits>

namespace componentlibrary {
namespace {

constexpr qint64 kLongestSeconds = 366LL * 24 * 3600;

QDateTime InUtc(const QString& text, const QString& format)
{
    QDateTime moment = QLocale::c().toDateTime(text, format);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

/// Two-digit years of the oldest form mean the nearest past, as RFC 9110 asks for; Qt reads them as 19xx.
QDateTime NearestCentury(QDateTime moment)
{
    const QDateTime limit = QDateTime::currentDateTimeUtc().addYears(50);
    while (moment.isValid() && moment.addYears(100) <= limit)
        moment = moment.addYears(100);
    return moment;
}

} // namespace

QDateTime HttpDate(const QByteArray& text)
{
    const QString date = QString::fromLatin1(text).simplified();
    QDateTime moment = InUtc(date, QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
    if (!moment.isValid())
        moment = NearestCentury(InUtc(date, QStringLiteral("dddd, dd-MMM-yy HH:mm:ss 'GMT'")));
    if (!moment.isValid())
        moment = InUtc(date, QStringLiteral("ddd MMM d HH:mm:ss yyyy"));
    return moment;
}

QDateTime RetryMoment(const QByteArray& retryAfter, const QByteArray& date, const QDateTime& now)
{
    const QByteArray value = retryAfter.trimmed();
    if (value.isEmpty())
        return QDateTime();
    bool isNumber = false;
    const qint64 seconds = value.toLongLong(&isNumber);
    if (isNumber)
        return seconds < 0 ? QDateTime() : now.toUTC().addSecs(std::min(seconds, kLongestSeconds));
    const QDateTime wanted = HttpDate(value);
    if (!wanted.isValid())
        return QDateTime();
    const QDateTime serverNow = HttpDate(date);
    const qint64 wait = (serverNow.isValid() ? serverNow : now.toUTC()).msecsTo(wanted);
    return now.toUTC().addMSecs(std::clamp<qint64>(wait, 0, kLongestSeconds * 1000));
}

} // namespace componentlibrary
