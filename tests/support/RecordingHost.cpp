#include "support/RecordingHost.h"

namespace testsupport {

RecordingHost::RecordingHost() : m_before(hostsdk::Installed())
{
    InstallAll();
}

RecordingHost::~RecordingHost()
{
    hostsdk::Install(m_before);
}

void RecordingHost::InstallAll()
{
    hostsdk::HostServices services;
    services.logger = &logger;
    services.debugMessages = &debugMessages;
    services.appService = &appService;
    services.userService = &userService;
    services.paths = &paths;
    services.baseConfig = &baseConfig;
    services.wabConfig = &wabConfig;
    services.categoryInfo = &categoryInfo;
    services.componentSql = &componentSql;
    services.filePaths = &filePaths;
    services.collaborationSettings = &collaborationSettings;
    services.networkCheck = &networkCheck;
    services.collaborationNetwork = &collaborationNetwork;
    services.familyFiles = &familyFiles;
    services.documentViews = &documentViews;
    hostsdk::Install(services);
}

} // namespace testsupport
