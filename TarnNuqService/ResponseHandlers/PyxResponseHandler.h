#pragma once

#include "ResponseHandlers/IResponseHandler.h"

#include <QJsonValue>

namespace tarnnuq {

/// The base of handlers for the component-website platform's paged endpoint: the interface's own Handle() with the
/// envelope check added.
/// @tparam T the result, see IResponseHandler
template <typename T>
class PyxResponseHandler : public IResponseHandler<T>
{
protected:
    void HandleBody(const QJsonObject& body) override;

    /// Fills `m_result` from the payload, or sets `m_error` when the payload cannot be used.
    /// @param data the envelope's "data"; undefined when it has none
    virtual void HandleData(const QJsonValue& data) = 0;
};

template <typename T>
void PyxResponseHandler<T>::HandleBody(const QJsonObject& body)
{
    if (ReplyParser::CheckEnvelope(body, this->m_error)) {
        HandleData(body.value(QLatin1String("data")));
    }
}

extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION PyxResponseHandler<RecordPage<ILegend>>;

} // namespace tarnnuq
