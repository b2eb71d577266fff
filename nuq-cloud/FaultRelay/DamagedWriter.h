#pragma once

#include "FaultRelay/Damage.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QTcpSocket;

namespace nuqcloud {

/// Sends one reply after another to a client, each as its damage says. Lives on the relay's thread.
class DamagedWriter : public QObject
{
    Q_OBJECT

public:
    /// @param socket the client's; outlives this object
    explicit DamagedWriter(QTcpSocket& socket, QObject* parent = nullptr);

    /// Begins a reply. REQUIRES: the one before is finished.
    void Begin(const Damage& damage);

    /// Adds body bytes; those behind the cut are dropped.
    void Append(const QByteArray& bytes);

    /// Says that no more bytes come.
    void End(bool sourceIsGone);

    /// False when so much waits that the source should not be read further.
    bool HasRoom() const;

signals:
    /// The reply has gone out as far as it was to go. Emitted once a reply.
    void Finished(nuqcloud::AfterReply after);

    /// There is room again.
    void RoomMade();

private:
    void Send();
    void SendSome(int limit);
    void CheckEnd();

    QTcpSocket& m_socket;
    QTimer m_delay;
    QTimer m_pace;
    Damage m_damage;
    QByteArray m_waiting;
    qint64 m_accepted = 0;
    bool m_ended = true;
    bool m_finished = true;
    bool m_sourceIsGone = false;
};

} // namespace nuqcloud

Q_DECLARE_METATYPE(nuqcloud::AfterReply)
