#pragma once

#include "ResponseHandlers/PyxResponseHandler.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps the component-website platform's page of legends. The total count counts only when it is sent as number.
///
/// A payload that is no object gives an empty page.
class TARNNUQSERVICE_EXPORT PagedLegendsResponseHandler : public PyxResponseHandler<RecordPage<ILegend>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    PagedLegendsResponseHandler();
    ~PagedLegendsResponseHandler() override;
    PagedLegendsResponseHandler(const PagedLegendsResponseHandler& other);
    PagedLegendsResponseHandler& operator=(const PagedLegendsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
