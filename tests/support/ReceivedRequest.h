#pragma once

#include <QByteArray>
#include <utility>
#include <vector>

namespace testsupport {

/// One HTTP request as it came over the wire.
struct ReceivedRequest
{
    QByteArray method;
    /// Path and query, still encoded.
    QByteArray target;
    QByteArray version;
    /// In order, with the names as they were written.
    std::vector<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    /// Counts the server's connections from 1: equal numbers mean a kept connection.
    int connection = 0;

    /// The target without its query.
    QByteArray Path() const;
    /// The target's part after the first "?", still encoded.
    QByteArray Query() const;
    /// The first value under that name, compared without case; empty when there is none.
    QByteArray Header(const QByteArray& name) const;
    /// How often the name occurs, compared without case; tells an empty value (1) from a missing header (0).
    int HeaderCount(const QByteArray& name) const;
};

} // namespace testsupport
