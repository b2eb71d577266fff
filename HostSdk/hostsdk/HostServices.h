#pragma once

#include "HostSdkExport.h"

namespace tarn {
class CollaborationProjectSettingForPS;
class INetworkCheck;
class ITarnCategoryInfoUtils;
class TarnCollaborationWithNetworkUtils;
class TarnComponentSqlUtil;
class TarnFilePathSettings;
} // namespace tarn

namespace tarnnuq {
class AppService;
class INuqLogger;
class PathUtils;
class UserService;
} // namespace tarnnuq

namespace wab {
class IBaseConfigManager;
class IWabConfigManager;
} // namespace wab

namespace zept {
class DebugMessageMgr;
class IFamilyFileFactory;
class IUiDocumentViewManager;
} // namespace zept

namespace hostsdk {

/**
 * The slot table: one pointer per object that a host offers to the library.
 *
 * A host fills the members it has, leaves the others null ("this host has none") and hands the table to Install().
 * Nothing is owned: every object has to outlive its stay in the table. The order of the members is fixed; new slots
 * are only ever added at the end.
 */
struct HostServices
{
    /// Receives log records. Null: nothing is logged.
    tarnnuq::INuqLogger* logger = nullptr;
    /// Receives debug warnings about unexpectedly missing objects. Null: they are dropped.
    zept::DebugMessageMgr* debugMessages = nullptr;
    /// The application that has loaded the library. Null: no folder, no name, no major, no version.
    tarnnuq::AppService* appService = nullptr;
    /// The signed-in user. Null: empty tokens and permission 0.
    tarnnuq::UserService* userService = nullptr;
    /// Where downloaded files go. Null: the user's cache folder.
    tarnnuq::PathUtils* paths = nullptr;
    /// Names the current environment. May stay null; callers see that.
    wab::IBaseConfigManager* baseConfig = nullptr;
    /// Names the design cloud's endpoints. May stay null; callers see that.
    wab::IWabConfigManager* wabConfig = nullptr;
    /// Local categories and their properties. May stay null; callers see that.
    tarn::ITarnCategoryInfoUtils* categoryInfo = nullptr;
    /// Looks legends up in the local component database. Null: every lookup fails.
    tarn::TarnComponentSqlUtil* componentSql = nullptr;
    /// Paths of the current product's data. Null: empty paths.
    tarn::TarnFilePathSettings* filePaths = nullptr;
    /// The collaboration project that is open. May stay null; callers see that.
    tarn::CollaborationProjectSettingForPS* collaborationSettings = nullptr;
    /// Tells whether the network is reachable. Null: it is not.
    tarn::INetworkCheck* networkCheck = nullptr;
    /// Names collaboration projects. Null: empty names.
    tarn::TarnCollaborationWithNetworkUtils* collaborationNetwork = nullptr;
    /// Opens family files. Null: no file opens.
    zept::IFamilyFileFactory* familyFiles = nullptr;
    /// The documents that are open. May stay null; callers see that.
    zept::IUiDocumentViewManager* documentViews = nullptr;
};

/**
 * Puts a host's objects in place for the whole process, whichever modules ask for them.
 *
 * Each call replaces the whole table, so a member left null takes an earlier host's object away. Call it before the
 * first use of the library and take the objects out (`Install({})`) before they go away. Not synchronised: no other
 * thread may use the host interfaces meanwhile.
 *
 * @param services the new table; copied, its objects are not owned.
 */
HOSTSDK_EXPORT void Install(const HostServices& services);

/**
 * The table in place: all null until the first Install().
 *
 * @return a reference that stays valid for the life of the process and shows every later Install().
 */
HOSTSDK_EXPORT const HostServices& Installed();

} // namespace hostsdk
