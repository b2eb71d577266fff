#pragma once

#include "ResponseHandlers/IResponseHandler.h"

#include <QJsonValue>

namespace tarnnuq {

/// The base of most concrete handlers: envelope check, then HandleData() for the payload.
///
/// The branch has a result and an error of its own beside the inherited pair, which it never touches: the two
/// branches of handlers keep the layout that hosts were built against.
/// @tparam T the result, see IResponseHandler
template <typename T>
class ResponseHandlerBase : public IResponseHandler<T>
{
public:
    /// See IResponseHandler::Handle(); log records and request errors are worded as ReplyWording::Composite.
    T Handle(QNetworkReply* reply, std::wstring& error) override;

private:
    void HandleBody(const QJsonObject& body) override;

protected:
    /// Fills `m_result` from the payload, or sets `m_error` when the payload cannot be used.
    /// @param data the envelope's "data"; undefined when it has none
    virtual void HandleData(const QJsonValue& data) = 0;

    T m_result{};         ///< The result of the last Handle().
    std::wstring m_error; ///< The error text of the last Handle(); empty on success.

private:
    void PrivateHandle(QNetworkReply* reply);
};

template <typename T>
T ResponseHandlerBase<T>::Handle(QNetworkReply* reply, std::wstring& error)
{
    return RunHandling(m_result, m_error, error, [this, reply] { PrivateHandle(reply); });
}

template <typename T>
void ResponseHandlerBase<T>::HandleBody(const QJsonObject& body)
{
    if (ReplyParser::CheckEnvelope(body, m_error)) {
        HandleData(body.value(QLatin1String("data")));
    }
}

template <typename T>
void ResponseHandlerBase<T>::PrivateHandle(QNetworkReply* reply)
{
    QJsonObject body;
    if (ReplyParser::Parse(reply, ReplyWording::Composite, body, m_error)) {
        HandleBody(body);
    }
}

#define TARNNUQSERVICE_DECLARE_INSTANCE(T)                                                                             \
    extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION ResponseHandlerBase<T>;
TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQSERVICE_DECLARE_INSTANCE)
#undef TARNNUQSERVICE_DECLARE_INSTANCE

} // namespace tarnnuq
