#include "MemoryReply.h"

#include <QUrl>
#include <algorithm>
#include <cstring>

namespace bench {

MemoryReply::MemoryReply(const QByteArray& body) : m_body(body)
{
    setUrl(QUrl(QStringLiteral("http://127.0.0.1/api")));
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 200);
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    setFinished(true);
}

void MemoryReply::Rewind()
{
    m_position = 0;
}

void MemoryReply::abort() {}

bool MemoryReply::isSequential() const
{
    return true;
}

qint64 MemoryReply::bytesAvailable() const
{
    return m_body.size() - m_position;
}

qint64 MemoryReply::readData(char* data, qint64 maxSize)
{
    const qint64 size = std::min(maxSize, m_body.size() - m_position);
    if (size <= 0) {
        return -1;
    }
    std::memcpy(data, m_body.constData() + m_position, static_cast<std::size_t>(size));
    m_position += size;
    return size;
}

} // namespace bench
