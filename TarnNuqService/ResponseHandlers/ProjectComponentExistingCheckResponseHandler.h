#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply about whether a component already exists in a project.
///
/// A payload that is no object, or an empty one, gives null.
class TARNNUQSERVICE_EXPORT ProjectComponentExistingCheckResponseHandler
    : public ResponseHandlerBase<RecordPtr<ProjectComponentExistingCheck>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    ProjectComponentExistingCheckResponseHandler();
    ~ProjectComponentExistingCheckResponseHandler() override;
    ProjectComponentExistingCheckResponseHandler(const ProjectComponentExistingCheckResponseHandler& other);
    ProjectComponentExistingCheckResponseHandler& operator=(const ProjectComponentExistingCheckResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
