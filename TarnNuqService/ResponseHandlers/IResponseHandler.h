#pragma once

#include "ResponseHandlers/ReplyParser.h"
#include "ResponseHandlers/ResultTypes.h"
#include "ResponseHandlers/TemplateExport.h"

#include <QJsonObject>
#include <string>
#include <utility>

class QNetworkReply;

namespace tarnnuq {

/// Runs one handling of a reply on a pair of result and error fields.
/// @internal Visible only because the handler templates are.
///
/// @param result the result field; default-constructed first
/// @param ownError the error field; emptied first
/// @param error the caller's error text; receives a copy of the error field (which it may be itself)
/// @param handle fills the two fields
/// @return a copy of the result
template <typename T, typename HandleReply>
T RunHandling(T& result, std::wstring& ownError, std::wstring& error, HandleReply&& handle)
{
    result = T();
    ownError.clear();
    std::forward<HandleReply>(handle)();
    if (&error != &ownError) {
        error = ownError;
    }
    return result;
}

/// Turns a finished network reply into a typed result or an error text.
///
/// A handler keeps the result and the error of its last handling and is otherwise stateless: every handling starts
/// afresh, so one object can serve any number of replies one after another. Copyable. Use it on the thread of the
/// reply's network manager only.
/// @tparam T the result: a shared record, a list of shared records, or a page of a list
template <typename T>
class IResponseHandler
{
public:
    IResponseHandler() = default;
    IResponseHandler(const IResponseHandler&) = default;
    IResponseHandler& operator=(const IResponseHandler&) = default;
    virtual ~IResponseHandler() = default;

    /// Handles a finished reply.
    ///
    /// No failure of the reply throws; what a concrete handler throws is passed on.
    /// @param reply the finished reply; may be null; neither deleted nor closed, the caller keeps it
    /// @param error receives the error text, empty on success
    /// @return a copy of the result; a default-constructed T on failure
    virtual T Handle(QNetworkReply* reply, std::wstring& error);

protected:
    /// Checks the envelope and passes its payload on.
    /// @param body the object at the top of the reply's JSON body
    virtual void HandleBody(const QJsonObject& body) = 0;

    T m_result{};         ///< The result of the last Handle().
    std::wstring m_error; ///< The error text of the last Handle(); empty on success.

private:
    void PrivateHandle(QNetworkReply* reply);
};

template <typename T>
T IResponseHandler<T>::Handle(QNetworkReply* reply, std::wstring& error)
{
    return RunHandling(m_result, m_error, error, [this, reply] { PrivateHandle(reply); });
}

template <typename T>
void IResponseHandler<T>::PrivateHandle(QNetworkReply* reply)
{
    QJsonObject body;
    if (ReplyParser::Parse(reply, ReplyWording::Plain, body, m_error)) {
        HandleBody(body);
    }
}

#define TARNNUQSERVICE_DECLARE_INSTANCE(T)                                                                             \
    extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION IResponseHandler<T>;
TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQSERVICE_DECLARE_INSTANCE)
#undef TARNNUQSERVICE_DECLARE_INSTANCE

} // namespace tarnnuq
