#pragma once

#include <QByteArray>
#include <QDateTime>

namespace componentlibrary {

/**
 * The moment named by a Retry-After header.
 *
 * Understands both forms: a number of seconds, and an HTTP date. A date is a date of the server's clock: when the
 * answer carries a Date header the waiting time is their difference, so a wrong clock here neither shortens nor
 * lengthens the wait.
 *
 * @param retryAfter value of the Retry-After header
 * @param date       value of the Date header, may be empty
 * @param now        this computer's time when the answer arrived
 * @return the earliest moment of the next try by this computer's clock (UTC), never before `now`; invalid when the
 *         header is missing or cannot be read
 */
QDateTime RetryMoment(const QByteArray& retryAfter, const QByteArray& date, const QDateTime& now);

/** An HTTP date ("Sun, 06 Nov 1994 08:49:37 GMT", and the two older forms) in UTC; invalid when it is none. */
QDateTime HttpDate(const QByteArray& text);

} // namespace componentlibrary
