#pragma once

#include "Requests/CheckedHandler.h"
#include "Requests/ReplyDiagnosis.h"
#include "Requests/RequestBase.h"

#include <QString>

#include <exception>
#include <string>
#include <type_traits>
#include <utility>

namespace componentlibrary {

/** Whether a result says "there is none": a null record. Lists and pages are never missing, only empty. */
template <class T>
bool IsMissing(const T& result)
{
    if constexpr (std::is_constructible_v<bool, const T&>)
        return !result;
    else
        return false;
}

/**
 * A request whose answer one of the library's handlers maps.
 *
 * A null record is reported as ErrorCode::NotFound, data of another form as ErrorCode::ServerWrongShape.
 */
template <class Handler>
class Request final : public RequestBase
{
public:
    using ResultType =
        decltype(std::declval<Handler&>().Handle(std::declval<QNetworkReply*>(), std::declval<std::wstring&>()));

    Request(HttpChannel& channel, Operation operation, const QUrl& address, ShapeCheck check, QObject* parent = nullptr)
        : RequestBase(channel, operation, address, parent), m_check(check)
    {
    }

    /** The result; default-constructed unless the request has succeeded. */
    const ResultType& Result() const { return m_result; }

    /** Moves the result out, so that a long list does not live twice. */
    ResultType TakeResult() { return std::move(m_result); }

private:
    ErrorInfo ReadResult(QNetworkReply& reply) override
    {
        try {
            return Map(reply);
        } catch (const std::exception& exception) {
            m_result = ResultType();
            ErrorInfo error = MakeError(ErrorCode::InternalFault);
            error.original = QString::fromUtf8(exception.what());
            return error;
        }
    }

    ErrorInfo Map(QNetworkReply& reply)
    {
        CheckedHandler<Handler> handler(m_check);
        std::wstring text;
        ResultType result = handler.Handle(&reply, text);
        if (!text.empty())
            return DiagnoseHandlerText(QString::fromStdWString(text));
        if (!handler.HasWantedShape())
            return MakeError(ErrorCode::ServerWrongShape);
        if (IsMissing(result))
            return MakeError(ErrorCode::NotFound);
        m_result = std::move(result);
        return ErrorInfo();
    }

    const ShapeCheck m_check;
    ResultType m_result{};
};

} // namespace componentlibrary
