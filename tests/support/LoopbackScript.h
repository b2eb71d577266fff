#pragma once

#include "support/ReceivedRequest.h"
#include "support/ScriptedResponse.h"

#include <QStringList>
#include <deque>
#include <map>
#include <mutex>
#include <vector>

namespace testsupport {

/// What a LoopbackServer was told to answer and what it has received. Used by the test's thread and the server's.
class LoopbackScript
{
public:
    void On(const QByteArray& pathOrTarget, const ScriptedResponse& response);
    void Enqueue(const ScriptedResponse& response);

    /// Keeps the request and finds its answer.
    ScriptedResponse Answer(const ReceivedRequest& request);

    std::vector<ReceivedRequest> Requests() const;
    /// The request lines for which there was no answer.
    QStringList Unmatched() const;

private:
    using Responses = std::deque<ScriptedResponse>;

    Responses* FindRoute(const ReceivedRequest& request);
    ScriptedResponse AnswerUnmatched(const ReceivedRequest& request);

    mutable std::mutex m_mutex;
    Responses m_queue;
    std::map<QByteArray, Responses> m_routes;
    std::vector<ReceivedRequest> m_requests;
    QStringList m_unmatched;
};

} // namespace testsupport
