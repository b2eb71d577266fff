#include "support/RequestReader.h"

#include <QList>

namespace testsupport {

namespace {

ReceivedRequest ParseHead(const QByteArray& head)
{
    QList<QByteArray> lines = head.split('\n');
    const QList<QByteArray> words = lines.takeFirst().trimmed().split(' ');
    ReceivedRequest request;
    request.method = words.value(0);
    request.target = words.value(1);
    request.version = words.value(2);
    for (const QByteArray& line : lines) {
        const int colon = line.indexOf(':');
        request.headers.emplace_back(line.left(colon).trimmed(), line.mid(colon + 1).trimmed());
    }
    return request;
}

} // namespace

std::optional<ReceivedRequest> RequestReader::Next()
{
    static const QByteArray endOfHead("\r\n\r\n");
    const int headSize = m_buffer.indexOf(endOfHead);
    if (headSize < 0) {
        return std::nullopt;
    }
    ReceivedRequest request = ParseHead(m_buffer.left(headSize));
    const int bodyStart = headSize + endOfHead.size();
    const int bodySize = request.Header("Content-Length").toInt();
    if (m_buffer.size() < bodyStart + bodySize) {
        return std::nullopt;
    }
    request.body = m_buffer.mid(bodyStart, bodySize);
    m_buffer.remove(0, bodyStart + bodySize);
    return request;
}

} // namespace testsupport
