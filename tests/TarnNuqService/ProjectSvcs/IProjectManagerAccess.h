#pragma once

#include "ProjectSvcs/IProjectManager.h"

namespace tarnnuq {

/// A project manager that ends with its test, and what it keeps to itself.
class IProjectManagerAccess
{
public:
    IProjectManager& Manager() { return m_manager; }
    std::wstring& DebugProjectId() { return m_manager.m_debugProjectId; }

private:
    IProjectManager m_manager{nullptr};
};

} // namespace tarnnuq
