#pragma once

#include "ResponseHandlers/CustomReplyBase.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "ResponseHandlers/TemplateExport.h"

#include <memory>
#include <utility>

namespace tarnnuq {

/// A pending reply with a typed result, mapped by the registry's handler for T.
/// @tparam T the result; a type without a handler ends with the error "ResponseHandler not found."
template <typename T>
class CustomReply : public CustomReplyBase
{
public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit CustomReply(QObject* parent = nullptr) : CustomReplyBase(parent) {}

    /// Keeps a handler alive with this reply. The reply is handled by the registry's handler all the same.
    /// @param handler the handler; may be null
    void SetResponseHandler(std::shared_ptr<IResponseHandler<T>> handler) { m_responseHandler = std::move(handler); }

    /// @return a copy of the result; default-constructed until Finished() and after a failure
    T Result() const { return m_result; }

protected:
    void PrivateHandleReply() override;

private:
    std::shared_ptr<IResponseHandler<T>> m_responseHandler;
    T m_result{};
};

template <typename T>
void CustomReply<T>::PrivateHandleReply()
{
    // Called from a signal of the network reply, which no exception may cross.
    try {
        if (IResponseHandler<T>* handler = ResponseHandlerRegistry::Get<T>()) {
            m_result = handler->Handle(m_reply, m_error);
        } else {
            m_error = L"ResponseHandler not found.";
            m_result = T();
        }
    } catch (...) {
        m_error = L"Unknown Error.";
        m_result = T();
    }
}

extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION CustomReply<RecordList<ICategoryMapping>>;
extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION CustomReply<RecordPage<ILegend>>;

} // namespace tarnnuq
