#include "support/RecordingHost.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <gtest/gtest.h>

using tarnnuq::INuqLogger;
using testsupport::LogRecord;
using testsupport::RecordingHost;

namespace {

void LogOnceByEachOperation()
{
    INuqLogger* const logger = INuqLogger::Get();
    logger->Info("information");
    logger->Error(L"error");
    logger->Warn(QStringLiteral("warning"));
    logger->Debug({"caption: ", L"value"});
}

} // namespace

TEST(TheLogger, IsTheInstalledOne)
{
    const RecordingHost host;
    EXPECT_EQ(INuqLogger::Get(), &host.logger);
}

TEST(TheLogger, KeepsOperationsAndPartsApart)
{
    const RecordingHost host;
    LogOnceByEachOperation();
    const std::vector<LogRecord> expected{
        {LogRecord::Operation::Info, {QStringLiteral("information")}},
        {LogRecord::Operation::Error, {QStringLiteral("error")}},
        {LogRecord::Operation::Warn, {QStringLiteral("warning")}},
        {LogRecord::Operation::Debug, {QStringLiteral("caption: "), QStringLiteral("value")}},
    };
    EXPECT_EQ(host.logger.Records(), expected);
}

TEST(TheLogger, DropsRecordsWithoutAHost)
{
    ASSERT_NE(INuqLogger::Get(), nullptr);
    EXPECT_NO_THROW(LogOnceByEachOperation());
}

TEST(TheLogger, IsTheHarmlessOneAgainWhenTheHostTakesItsOwnAway)
{
    INuqLogger* const withoutHost = INuqLogger::Get();
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::logger);
    LogOnceByEachOperation();
    EXPECT_EQ(INuqLogger::Get(), withoutHost);
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST(TheLogger, IsThatOfTheLatestHost)
{
    const RecordingHost first;
    const RecordingHost second;
    INuqLogger::Get()->Info("to the second");
    EXPECT_TRUE(first.logger.Records().empty());
    EXPECT_EQ(second.logger.Texts(), QStringList(QStringLiteral("to the second")));
}
