#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"

namespace tarnnuq {

/// A handler for replies whose payload nobody has defined: every payload is an error.
/// @tparam T the result, see IResponseHandler
template <typename T>
class SimpleDataResponseHandler : public ResponseHandlerBase<T>
{
protected:
    /// Sets the error "undefined simple data handler." and leaves the result alone.
    void HandleData(const QJsonValue& data) override;
};

template <typename T>
void SimpleDataResponseHandler<T>::HandleData(const QJsonValue&)
{
    this->m_error = L"undefined simple data handler.";
}

extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION SimpleDataResponseHandler<RecordPage<ILegend>>;
extern template class TARNNUQSERVICE_TEMPLATE_DECLARATION SimpleDataResponseHandler<RecordList<ICategoryMapping>>;

} // namespace tarnnuq
