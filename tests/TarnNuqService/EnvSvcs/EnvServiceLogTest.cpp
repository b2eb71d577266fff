#include "EnvSvcs/EnvService.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"

using tarnnuq::EnvService;
using testsupport::EnvironmentFiles;
using testsupport::EnvironmentFolder;
using testsupport::LogRecord;

namespace {

class EnvServiceLogTest : public testsupport::EnvServiceFixture
{
protected:
    /// The first records of a complete reading.
    std::vector<LogRecord> FirstRecords(const EnvironmentFiles& files, std::size_t count) const
    {
        std::vector<LogRecord> records = folder.RecordsOf(files);
        records.resize(count);
        return records;
    }
};

} // namespace

TEST_F(EnvServiceLogTest, EachFileIsLoggedAsAPathAndAContentRecordInTheOrderOfReading)
{
    EnvironmentFiles files;
    files.pyx = R"({"test":{"api":"http://例/接口"}})";
    folder.WriteAll(files);
    EnvService::GetPyxCurrentEnv();
    EXPECT_EQ(host.logger.Records(), folder.RecordsOf(files));
    EXPECT_EQ(host.logger.Records().size(), 8U);
}

TEST_F(EnvServiceLogTest, TheCaptionsAreTheseByteForByte)
{
    folder.WriteAll();
    EnvService::GetPyxApiEndPoint();
    QStringList captions;
    for (const LogRecord& record : host.logger.Records()) {
        ASSERT_EQ(record.parts.size(), 2);
        captions += record.parts.front();
    }
    EXPECT_EQ(captions.join(QLatin1Char('|')).toStdString(),
        "nuq env config file path: |nuq env config:\r\n|wab env config file path: |wab env config:\r\n|"
        "env map file path: |env map:\r\n|pyx env config file path: |pyx env config:\r\n");
}

TEST_F(EnvServiceLogTest, NothingIsReadOrLoggedAgainByLaterCalls)
{
    folder.WriteAll();
    EnvService::GetPyxStaticEndPoint();
    host.logger.Clear();
    EnvService::GetPyxApiEndPoint();
    EnvService::GetPyxStaticEndPoint();
    EnvService::GetPyxCurrentEnv();
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(EnvServiceLogTest, WithoutAMainFileOnlyItsPathIsLogged)
{
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), FirstRecords({}, 1));
}

TEST_F(EnvServiceLogTest, WithoutNamesInTheMainFileNoOtherFileIsLogged)
{
    EnvironmentFiles files;
    files.main = R"({"other":"/nuq_env_config/wab_env.xml"})";
    folder.WriteAll(files);
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), FirstRecords(files, 2));
}

TEST_F(EnvServiceLogTest, WithoutAnEnvironmentTheMapIsNotLookedAt)
{
    host.baseConfig.currentEnv.clear();
    folder.WriteAll();
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), FirstRecords({}, 4));
}

TEST_F(EnvServiceLogTest, WithoutAMapFileNameThePyxFileIsNotLookedAt)
{
    EnvironmentFiles files;
    files.main = R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json"})";
    folder.WriteAll(files);
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), FirstRecords(files, 4));
}

TEST_F(EnvServiceLogTest, WithoutAMappedEnvironmentThePyxFileIsNotLookedAt)
{
    EnvironmentFiles files;
    files.map = R"({"prod":"production"})";
    folder.WriteAll(files);
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), FirstRecords(files, 6));
}

TEST_F(EnvServiceLogTest, WithoutAPyxFileNameTheMapIsReadAllTheSame)
{
    EnvironmentFiles files;
    files.main = R"({"wab_env":"/nuq_env_config/wab_env.xml","env_map":"/nuq_env_config/env_map.json"})";
    folder.WriteAll(files);
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"test");
    EXPECT_EQ(host.logger.Records(), FirstRecords(files, 6));
}

TEST_F(EnvServiceLogTest, WithoutAWabFileNameTheOtherFilesAreReadAllTheSame)
{
    EnvironmentFiles files;
    files.main = R"({"pyx_env":"/nuq_env_config/pyx_env.json","env_map":"/nuq_env_config/env_map.json"})";
    folder.WriteAll(files);
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
    std::vector<LogRecord> expected = folder.RecordsOf(files);
    expected.erase(expected.begin() + 2, expected.begin() + 4);
    EXPECT_EQ(host.logger.Records(), expected);
}

TEST_F(EnvServiceLogTest, LineEndsOfTheWabFileAreReadAsText)
{
    EnvironmentFiles files;
    files.wab = "<envs>\r\n<env name='qa'/>\r\n</envs>\r\n";
    folder.WriteAll(files);
    EnvService::GetPyxApiEndPoint();
    ASSERT_GE(host.logger.Records().size(), 4U);
    EXPECT_EQ(host.logger.Records()[3],
        EnvironmentFolder::ContentRecord(QStringLiteral("wab env config"), "<envs>\n<env name='qa'/>\n</envs>\n"));
}

TEST_F(EnvServiceLogTest, LineEndsOfTheJsonFilesAreLoggedAsTheyAre)
{
    EnvironmentFiles files;
    files.main = files.main + "\r\n";
    files.map = files.map + "\r\n";
    files.pyx = files.pyx + "\r\n";
    folder.WriteAll(files);
    EnvService::GetPyxApiEndPoint();
    EXPECT_EQ(host.logger.Records(), folder.RecordsOf(files));
}

TEST_F(EnvServiceLogTest, RelativePathsAreAppendedToTheFolderWithoutASeparator)
{
    EnvironmentFiles files;
    files.main = R"({"wab_env":"-wab.xml","pyx_env":"-pyx.json","env_map":"-映射.json"})";
    folder.Write(QString::fromLatin1(EnvironmentFolder::MainFile), files.main);
    folder.Write(QStringLiteral("-wab.xml"), files.wab);
    folder.Write(QStringLiteral("-映射.json"), files.map);
    folder.Write(QStringLiteral("-pyx.json"), files.pyx);
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"http://qa.example/Static");
    const std::vector<LogRecord>& records = host.logger.Records();
    ASSERT_EQ(records.size(), 8U);
    EXPECT_EQ(records[2], folder.PathRecord(QStringLiteral("wab env config"), QStringLiteral("-wab.xml")));
    EXPECT_EQ(records[4], folder.PathRecord(QStringLiteral("env map"), QStringLiteral("-映射.json")));
    EXPECT_EQ(records[6], folder.PathRecord(QStringLiteral("pyx env config"), QStringLiteral("-pyx.json")));
}
