#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply about one project component.
///
/// This reply has no status, and its category id counts only when it is sent as text. A payload that is no object, or
/// an empty one, gives null.
class TARNNUQSERVICE_EXPORT ProjectComponentResponseHandler : public ResponseHandlerBase<RecordPtr<IProjectComponent>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    ProjectComponentResponseHandler();
    ~ProjectComponentResponseHandler() override;
    ProjectComponentResponseHandler(const ProjectComponentResponseHandler& other);
    ProjectComponentResponseHandler& operator=(const ProjectComponentResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
