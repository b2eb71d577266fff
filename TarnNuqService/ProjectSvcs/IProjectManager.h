#pragma once

#include "TarnNuqServiceExport.h"

#include <QObject>
#include <string>

namespace tarnnuq {

/// The collaboration project in which the user is working: which one it is, what the user may do in it, and what
/// projects are called.
///
/// Holds no project data: every answer is the host's, asked for anew. One instance a process, used on the GUI thread,
/// where also the first call of Get() has to be.
class TARNNUQSERVICE_EXPORT IProjectManager : public QObject
{
    Q_OBJECT

public:
    /// @return the single instance, made on the first call and never destroyed
    static IProjectManager* Get();

    /// The id of the current project. The stand-alone application, which calls itself exactly "AppNuq", has no
    /// collaboration of its own: there it is the debug project id, and there alone.
    /// @return the id; empty when no project is open and when the host has no collaboration settings
    std::wstring GetCurrentProjectId();

    /// What the user may do with the component library in the host's working project; the debug project id plays no
    /// part in it. Asks nobody while the network is unreachable. Where the host has no collaboration settings, a debug
    /// warning is raised.
    /// @return the level as the host's user service gives it; 0 for none or unknown
    int GetCurrentProjectPermission();

    /// The display name of a project.
    /// @return the name as the host gives it; empty for a project that it does not know
    std::wstring GetProjectNameById(const std::wstring& projectId);

    /// Sets the project of the stand-alone application; see GetCurrentProjectId(). Empty means none.
    void SetDebugProjectId(const std::wstring& projectId);

    /// @return what SetDebugProjectId() was last given; empty before
    const std::wstring GetDebugProjectId();

private:
    friend class IProjectManagerAccess; // the seam for tests

    explicit IProjectManager(QObject* parent);
    ~IProjectManager() override;

    static IProjectManager* s_pInstance;

    std::wstring m_debugProjectId;
};

} // namespace tarnnuq
