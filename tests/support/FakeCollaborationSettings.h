#pragma once

#include "tarn/CollaborationProjectSettingForPS.h"

#include <string>

namespace testsupport {

/// Collaboration settings with an answer to set; counts how often they were asked.
class FakeCollaborationSettings final : public tarn::CollaborationProjectSettingForPS
{
public:
    std::wstring GetWorkingProjectId() const override
    {
        ++questions;
        return workingProjectId;
    }

    std::wstring workingProjectId;
    mutable int questions = 0;
};

} // namespace testsupport
