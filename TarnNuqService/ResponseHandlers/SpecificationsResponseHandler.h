#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply about all family types of a component.
///
/// Every family type has parameters of its own; all of them share the definitions, which are read once.
class TARNNUQSERVICE_EXPORT SpecificationsResponseHandler : public ResponseHandlerBase<RecordList<ISpecification>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    SpecificationsResponseHandler();
    ~SpecificationsResponseHandler() override;
    SpecificationsResponseHandler(const SpecificationsResponseHandler& other);
    SpecificationsResponseHandler& operator=(const SpecificationsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
