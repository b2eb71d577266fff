#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply about one project component in detail: family type names and thumbnails in every size.
///
/// A payload that is no object, or an empty one, gives null.
class TARNNUQSERVICE_EXPORT DetailedProjectComponentResponseHandler
    : public ResponseHandlerBase<RecordPtr<IDetailedProjectComponent>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    DetailedProjectComponentResponseHandler();
    ~DetailedProjectComponentResponseHandler() override;
    DetailedProjectComponentResponseHandler(const DetailedProjectComponentResponseHandler& other);
    DetailedProjectComponentResponseHandler& operator=(const DetailedProjectComponentResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
