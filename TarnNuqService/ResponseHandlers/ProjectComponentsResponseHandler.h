#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's list of project components, in the order of the reply.
///
/// A payload that is no array gives an empty list.
class TARNNUQSERVICE_EXPORT ProjectComponentsResponseHandler : public ResponseHandlerBase<RecordList<IProjectComponent>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    ProjectComponentsResponseHandler();
    ~ProjectComponentsResponseHandler() override;
    ProjectComponentsResponseHandler(const ProjectComponentsResponseHandler& other);
    ProjectComponentsResponseHandler& operator=(const ProjectComponentsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
