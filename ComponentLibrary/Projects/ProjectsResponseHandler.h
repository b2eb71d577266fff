#pragma once

#include "Projects/ProjectInfo.h"
#include "ResponseHandlers/ResponseHandlerBase.h"

#include <memory>
#include <vector>

namespace componentlibrary {

/** Maps the list of projects: an array of objects with "id" (text or number) and "name". */
class ProjectsResponseHandler : public tarnnuq::ResponseHandlerBase<std::vector<std::shared_ptr<ProjectInfo>>>
{
protected:
    void HandleData(const QJsonValue& data) override;
};

} // namespace componentlibrary
