#pragma once

#include "hostsdk/HostServices.h"
#include "support/FakeAppService.h"
#include "support/FakeBaseConfigManager.h"
#include "support/FakeCategoryInfoUtils.h"
#include "support/FakeCollaborationNetwork.h"
#include "support/FakeCollaborationSettings.h"
#include "support/FakeComponentSql.h"
#include "support/FakeFamilyFileFactory.h"
#include "support/FakeFilePathSettings.h"
#include "support/FakeNetworkCheck.h"
#include "support/FakePathUtils.h"
#include "support/FakeUiDocumentViewManager.h"
#include "support/FakeUserService.h"
#include "support/FakeWabConfigManager.h"
#include "support/RecordingDebugMessages.h"
#include "support/RecordingLogger.h"

namespace testsupport {

/**
 * A whole host that records what the library tells it and answers what the test sets.
 *
 * Every slot is filled on construction; the destructor puts the table back that was installed before. Make it before
 * anything of the library is used: the services read their configuration once.
 */
class RecordingHost
{
public:
    RecordingHost();
    ~RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    /// Makes the host one without this object: `host.Remove(&hostsdk::HostServices::logger)`.
    template <typename Service>
    void Remove(Service* hostsdk::HostServices::*slot)
    {
        hostsdk::HostServices services = hostsdk::Installed();
        services.*slot = nullptr;
        hostsdk::Install(services);
    }

    /// Fills every slot with this host's own objects again.
    void InstallAll();

    RecordingLogger logger;
    RecordingDebugMessages debugMessages;
    FakeAppService appService;
    FakeUserService userService;
    FakePathUtils paths;
    FakeBaseConfigManager baseConfig;
    FakeWabConfigManager wabConfig;
    FakeCategoryInfoUtils categoryInfo;
    FakeComponentSql componentSql;
    FakeFilePathSettings filePaths;
    FakeCollaborationSettings collaborationSettings;
    FakeNetworkCheck networkCheck;
    FakeCollaborationNetwork collaborationNetwork;
    FakeFamilyFileFactory familyFiles;
    FakeUiDocumentViewManager documentViews;

private:
    hostsdk::HostServices m_before;
};

} // namespace testsupport
