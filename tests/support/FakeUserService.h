#pragma once

#include "tarnnuq/UserService.h"

#include <string>
#include <utility>
#include <vector>

namespace testsupport {

/// A user with answers to set; keeps the (project, module) pairs whose permission was asked for.
class FakeUserService final : public tarnnuq::UserService
{
public:
    std::wstring GetToken() const override { return token; }
    std::wstring GetTokenInQa() const override { return tokenInQa; }
    int GetPermissionInCollaborationProject(
        const std::wstring& projectId, const std::wstring& moduleCode) const override
    {
        permissionQuestions.emplace_back(projectId, moduleCode);
        return permission;
    }

    std::wstring token = L"token";
    std::wstring tokenInQa = L"token-in-qa";
    int permission = 0;
    mutable std::vector<std::pair<std::wstring, std::wstring>> permissionQuestions;
};

} // namespace testsupport
