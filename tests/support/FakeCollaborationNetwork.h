#pragma once

#include "tarn/TarnCollaborationWithNetworkUtils.h"

#include <map>
#include <string>

namespace testsupport {

/// Names the projects that the test sets; any other name is empty.
class FakeCollaborationNetwork final : public tarn::TarnCollaborationWithNetworkUtils
{
public:
    std::map<std::wstring, std::wstring> projectNames;

protected:
    std::wstring DoGetProjectNameByProjectId(const std::wstring& projectId) const override
    {
        const auto found = projectNames.find(projectId);
        return found != projectNames.end() ? found->second : std::wstring();
    }
};

} // namespace testsupport
