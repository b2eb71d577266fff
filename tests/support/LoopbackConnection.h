#pragma once

#include "support/RequestReader.h"
#include "support/ScriptedResponse.h"

#include <QObject>
#include <QTcpSocket>

namespace testsupport {

class LoopbackScript;

/// One connection of a LoopbackServer: answers its requests one after the other. Lives in the server's thread.
class LoopbackConnection : public QObject
{
    Q_OBJECT

public:
    /**
     * @param socket connected; taken over.
     * @param number what the requests carry as ReceivedRequest::connection.
     */
    LoopbackConnection(QTcpSocket* socket, LoopbackScript& script, int number, QObject* parent);

private:
    void Receive();
    void AnswerNext();
    void Send();
    void Drip();
    void Finish();

    QTcpSocket* m_socket;
    LoopbackScript& m_script;
    int m_number;
    RequestReader m_reader;
    /// Set while an answer is on its way; a stalled one stays for ever.
    std::optional<ScriptedResponse> m_response;
    QByteArray m_unsent;
};

} // namespace testsupport
