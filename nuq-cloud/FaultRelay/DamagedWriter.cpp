#include "FaultRelay/DamagedWriter.h"

#include <QTcpSocket>
#include <algorithm>

namespace nuqcloud {
namespace {

constexpr int kPaceMilliseconds = 20;
constexpr qint64 kMostWaiting = 1 << 20;

} // namespace

DamagedWriter::DamagedWriter(QTcpSocket& socket, QObject* parent) : QObject(parent), m_socket(socket)
{
    m_delay.setSingleShot(true);
    m_delay.setTimerType(Qt::PreciseTimer);
    m_pace.setInterval(kPaceMilliseconds);
    m_pace.setTimerType(Qt::PreciseTimer);
    connect(&m_delay, &QTimer::timeout, this, &DamagedWriter::Send);
    connect(&m_pace, &QTimer::timeout, this, &DamagedWriter::Send);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &DamagedWriter::CheckEnd);
}

void DamagedWriter::Begin(const Damage& damage)
{
    m_damage = damage;
    m_waiting.clear();
    m_accepted = 0;
    m_ended = false;
    m_finished = false;
    m_sourceIsGone = false;
    if (m_damage.bytesPerSecond > 0) {
        // A rate below one byte a tick is kept by fewer ticks.
        m_pace.setInterval(static_cast<int>(std::max<qint64>(kPaceMilliseconds, 1000 / m_damage.bytesPerSecond)));
        m_pace.start();
    }
    if (m_damage.delayMilliseconds > 0) {
        m_delay.start(static_cast<int>(m_damage.delayMilliseconds));
    }
    Append(m_damage.head);
}

void DamagedWriter::Append(const QByteArray& bytes)
{
    const qint64 allowed = m_damage.cutAt < 0 ? bytes.size() : std::max<qint64>(m_damage.cutAt - m_accepted, 0);
    m_waiting += bytes.left(static_cast<int>(std::min<qint64>(allowed, bytes.size())));
    m_accepted += bytes.size();
    if (m_damage.cutAt >= 0 && m_accepted >= m_damage.cutAt) {
        m_ended = true;
    }
    if (m_damage.bytesPerSecond == 0) {
        Send();
    }
}

void DamagedWriter::End(bool sourceIsGone)
{
    m_ended = true;
    m_sourceIsGone = sourceIsGone;
    CheckEnd();
}

bool DamagedWriter::HasRoom() const
{
    return m_waiting.size() + m_socket.bytesToWrite() < kMostWaiting;
}

void DamagedWriter::Send()
{
    if (m_delay.isActive()) {
        return;
    }
    const qint64 rate = m_damage.bytesPerSecond;
    SendSome(rate == 0 ? m_waiting.size() : static_cast<int>(std::max<qint64>(rate * m_pace.interval() / 1000, 1)));
    CheckEnd();
}

void DamagedWriter::SendSome(int limit)
{
    const int count = std::min(limit, m_waiting.size());
    if (count > 0) {
        m_socket.write(m_waiting.constData(), count);
        m_waiting.remove(0, count);
    }
}

void DamagedWriter::CheckEnd()
{
    if (m_finished) {
        return;
    }
    const bool sent = m_waiting.isEmpty() && m_socket.bytesToWrite() == 0 && !m_delay.isActive();
    if (!m_ended || !sent) {
        if (HasRoom()) {
            emit RoomMade();
        }
        return;
    }
    m_finished = true;
    m_pace.stop();
    emit Finished(m_damage.after == AfterReply::Keep && m_sourceIsGone ? AfterReply::Close : m_damage.after);
}

} // namespace nuqcloud
