#pragma once

#include <QNetworkReply>

namespace bench {

/// A finished network reply over bytes in memory; reading them all shares them.
class MemoryReply : public QNetworkReply
{
    Q_OBJECT

public:
    explicit MemoryReply(const QByteArray& body);

    /// Makes the whole body readable once more.
    void Rewind();

    void abort() override;
    bool isSequential() const override;
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 maxSize) override;

private:
    QByteArray m_body;
    qint64 m_position = 0;
};

} // namespace bench
