#include "Logging/DebugWarnings.h"

#include "support/PrintQt.h"
#include "tarnnuq/NuqLogObject.h"
#include <QStringList>
#include <gtest/gtest.h>

using standalone::DebugWarnings;

namespace {

class WarningsOnly final : public tarnnuq::INuqLogger
{
public:
    void Info(const tarnnuq::NuqLogObject&) override { ++others; }
    void Error(const tarnnuq::NuqLogObject&) override { ++others; }
    void Warn(const tarnnuq::NuqLogObject& record) override { warnings += record.Text(); }
    void Debug(const tarnnuq::NuqLogObject&) override { ++others; }

    QStringList warnings;
    int others = 0;
};

TEST(DebugWarnings, AreLoggedAsWarnings)
{
    WarningsOnly logger;
    DebugWarnings(logger).ShowDebugWarn("EnvSvcs/EnvService.cpp", 42, "tarnnuq::EnvService::GetWabCurrentEnv",
        L"pConfigMgr为空 %1", L"tarnnuq", L"2022-01-25");
    EXPECT_EQ(
        logger.warnings, QStringList{QStringLiteral("debug warning: pConfigMgr为空 %1 (EnvSvcs/EnvService.cpp:42, "
                                                    "tarnnuq::EnvService::GetWabCurrentEnv, tarnnuq, 2022-01-25)")});
    EXPECT_EQ(logger.others, 0);
}

TEST(DebugWarnings, TakeNullTextsAsEmptyOnes)
{
    WarningsOnly logger;
    DebugWarnings(logger).ShowDebugWarn(nullptr, 0, nullptr, L"", L"", L"");
    EXPECT_EQ(logger.warnings, QStringList{QStringLiteral("debug warning:  (:0, , , )")});
}

} // namespace
