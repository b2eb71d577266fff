#pragma once

#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace testsupport {

/// A host in the environment "qa" whose application folder has no environment files yet.
class EnvServiceFixture : public ::testing::Test
{
protected:
    EnvServiceFixture()
    {
        host.appService.appDir = folder.AppDir();
        host.baseConfig.currentEnv = "qa";
    }

    EnvironmentFolder folder;
    RecordingHost host;
};

} // namespace testsupport
