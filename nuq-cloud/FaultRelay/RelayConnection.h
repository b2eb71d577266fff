#pragma once

#include "FaultRelay/BodyFraming.h"
#include "FaultRelay/DamagedWriter.h"
#include "FaultRelay/FaultPlan.h"
#include "FaultRelay/FaultRelaySettings.h"
#include "FaultRelay/HttpHead.h"

#include <QByteArray>
#include <QObject>
#include <QTcpSocket>
#include <vector>

namespace nuqcloud {

/// One client's connection and the one to the server that stands behind it. Deletes itself when the client is gone.
///
/// Requests are taken one at a time; the next one waits until the reply of the one before has gone out.
class RelayConnection : public QObject
{
    Q_OBJECT

public:
    /// @param client taken over
    /// @param settings outlive this object, as the plan does
    RelayConnection(QTcpSocket* client, const FaultRelaySettings& settings, FaultPlan& plan, QObject* parent);
    ~RelayConnection() override;

    /// Ends the connection: at once when no request runs or its reply stalls, else after its reply.
    void EndSoon();

private:
    void ReadClient();
    void TakeRequest();
    bool ReadRequestHead();
    void StartRequest(HttpHead head);
    void PassRequestBody();
    void ReadTarget();
    bool ReadReplyHead();
    void PassReplyBody();
    void TargetGone();
    void ReplySent(AfterReply after);
    void Refuse(const QByteArray& status, const QByteArray& reason);
    void Reset();

    QTcpSocket* const m_client;
    const FaultRelaySettings& m_settings;
    FaultPlan& m_plan;
    QTcpSocket m_target;
    DamagedWriter m_writer;

    QByteArray m_clientBytes;
    QByteArray m_targetBytes;
    QByteArray m_method;
    std::vector<Fault> m_faults;
    BodyFraming m_requestBody;
    BodyFraming m_replyBody;
    bool m_isEnding = false;
    bool m_isStalled = false;
    bool m_requestIsRunning = false;
    bool m_replyHasBegun = false;
    bool m_replyHasEnded = false;
};

} // namespace nuqcloud
