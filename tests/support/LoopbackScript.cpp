#include "support/LoopbackScript.h"

namespace testsupport {

namespace {

ScriptedResponse TakeFirst(std::deque<ScriptedResponse>& responses)
{
    const ScriptedResponse first = responses.front();
    responses.pop_front();
    return first;
}

} // namespace

void LoopbackScript::On(const QByteArray& pathOrTarget, const ScriptedResponse& response)
{
    const std::lock_guard lock(m_mutex);
    m_routes[pathOrTarget].push_back(response);
}

void LoopbackScript::Enqueue(const ScriptedResponse& response)
{
    const std::lock_guard lock(m_mutex);
    m_queue.push_back(response);
}

ScriptedResponse LoopbackScript::Answer(const ReceivedRequest& request)
{
    const std::lock_guard lock(m_mutex);
    m_requests.push_back(request);
    if (!m_queue.empty()) {
        return TakeFirst(m_queue);
    }
    Responses* const route = FindRoute(request);
    if (route == nullptr) {
        return AnswerUnmatched(request);
    }
    return route->size() > 1 ? TakeFirst(*route) : route->front();
}

std::vector<ReceivedRequest> LoopbackScript::Requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

QStringList LoopbackScript::Unmatched() const
{
    const std::lock_guard lock(m_mutex);
    return m_unmatched;
}

LoopbackScript::Responses* LoopbackScript::FindRoute(const ReceivedRequest& request)
{
    for (const QByteArray& key : {request.target, request.Path()}) {
        const auto found = m_routes.find(key);
        if (found != m_routes.end()) {
            return &found->second;
        }
    }
    return nullptr;
}

ScriptedResponse LoopbackScript::AnswerUnmatched(const ReceivedRequest& request)
{
    m_unmatched += QString::fromUtf8(request.method + ' ' + request.target);
    return ScriptedResponse::Status(501, "no answer was scripted for " + request.target);
}

} // namespace testsupport
