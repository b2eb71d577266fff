#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's page of project components. The total count may be sent as number or as text.
///
/// A payload that is no object gives an empty page.
class TARNNUQSERVICE_EXPORT PagedProjectComponentsResponseHandler
    : public ResponseHandlerBase<RecordPage<IProjectComponent>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    PagedProjectComponentsResponseHandler();
    ~PagedProjectComponentsResponseHandler() override;
    PagedProjectComponentsResponseHandler(const PagedProjectComponentsResponseHandler& other);
    PagedProjectComponentsResponseHandler& operator=(const PagedProjectComponentsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
