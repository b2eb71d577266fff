#pragma once

#include <QJsonValue>
#include <functional>
#include <string>
#include <vector>

namespace testsupport {

/**
 * A handler of a branch that keeps what it was given and shows what the branch keeps to itself.
 *
 * @tparam Branch ResponseHandlerBase<T> or PyxResponseHandler<T>
 * @tparam T the branch's result type
 */
template <typename Branch, typename T>
class ProbeHandler : public Branch
{
public:
    /// Every payload so far.
    std::vector<QJsonValue> payloads;
    /// What to do with a payload.
    std::function<void(ProbeHandler&)> onPayload = [](ProbeHandler&) {};

    T& OwnResult() { return this->m_result; }
    std::wstring& OwnError() { return this->m_error; }

protected:
    void HandleData(const QJsonValue& data) override
    {
        payloads.push_back(data);
        onPayload(*this);
    }
};

} // namespace testsupport
