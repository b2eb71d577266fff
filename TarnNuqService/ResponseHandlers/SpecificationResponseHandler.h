#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply about one family type: its parameter definitions and the values it gives them.
///
/// A payload that is no object, or an empty one, gives null.
class TARNNUQSERVICE_EXPORT SpecificationResponseHandler : public ResponseHandlerBase<RecordPtr<ISpecification>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    SpecificationResponseHandler();
    ~SpecificationResponseHandler() override;
    SpecificationResponseHandler(const SpecificationResponseHandler& other);
    SpecificationResponseHandler& operator=(const SpecificationResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
