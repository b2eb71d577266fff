#include "Application/EnvironmentFiles.h"

#include "Application/DesignCloudEndPoints.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <gtest/gtest.h>

using standalone::DesignCloudEndPoints;
using standalone::EnvironmentFiles;

namespace {

void WriteGood(const TestFolder& folder)
{
    folder.Write(QStringLiteral("nuq_env_config/nuq_env_config.json"), R"({"env_map":"/nuq_env_config/map.json"})");
    folder.Write(QStringLiteral("nuq_env_config/map.json"), R"({"qa":"test","prod":"production","Abc":"x"})");
    folder.Write(QStringLiteral("nuq_env_config/wab_endpoints.json"),
        R"({"qa":{"structure":"http://H/qa/结构"},"prod":{"structure":"http://h/s","other":5}})");
}

TEST(EnvironmentFiles, ListTheEnvironmentsOfTheMap)
{
    const TestFolder folder;
    WriteGood(folder);
    const EnvironmentFiles files(folder.Path());
    EXPECT_EQ(
        files.KnownEnvironments(), (QStringList{QStringLiteral("Abc"), QStringLiteral("prod"), QStringLiteral("qa")}));
    EXPECT_EQ(files.Faults(), QStringList());
}

TEST(EnvironmentFiles, GiveTheEndPointsOfAnEnvironment)
{
    const TestFolder folder;
    WriteGood(folder);
    const EnvironmentFiles files(folder.Path());
    EXPECT_EQ(DesignCloudEndPoints(files, QStringLiteral("qa")).GetEndPoint(L"structure"), L"http://H/qa/结构");
    EXPECT_EQ(DesignCloudEndPoints(files, QStringLiteral("prod")).GetEndPoint(L"structure"), L"http://h/s");
    EXPECT_EQ(DesignCloudEndPoints(files, QStringLiteral("prod")).GetEndPoint(L"other"), L"");
    EXPECT_EQ(DesignCloudEndPoints(files, QStringLiteral("prod")).GetEndPoint(L"Structure"), L"");
    EXPECT_EQ(DesignCloudEndPoints(files, QStringLiteral("QA")).GetEndPoint(L"structure"), L"");
    EXPECT_EQ(DesignCloudEndPoints(files, QString()).GetEndPoint(L""), L"");
}

TEST(EnvironmentFiles, ReadAsEmptyWhenTheyAreMissing)
{
    const TestFolder folder;
    const EnvironmentFiles files(folder.Path(QStringLiteral("nowhere")));
    EXPECT_EQ(files.KnownEnvironments(), QStringList());
    EXPECT_EQ(files.EndPoint(QStringLiteral("qa"), QStringLiteral("structure")), QString());
    EXPECT_EQ(files.Faults(),
        (QStringList{folder.Path(QStringLiteral("nowhere/nuq_env_config/nuq_env_config.json does not exist")),
            folder.Path(QStringLiteral("nowhere/nuq_env_config/wab_endpoints.json does not exist"))}));
}

TEST(EnvironmentFiles, NameAMapThatIsMissing)
{
    const TestFolder folder;
    WriteGood(folder);
    folder.Write(QStringLiteral("nuq_env_config/nuq_env_config.json"), R"({"env_map":"/gone.json"})");
    EXPECT_EQ(
        EnvironmentFiles(folder.Path()).Faults(), QStringList{folder.Path(QStringLiteral("gone.json does not exist"))});
}

TEST(EnvironmentFiles, NameEachKindOfBrokenFile)
{
    const QString file = QStringLiteral("nuq_env_config/wab_endpoints.json");
    const struct
    {
        QByteArray content;
        const char* fault;
    } rows[] = {
        {"", "is not JSON: illegal value at byte 0"},
        {"{\"qa\":", "is not JSON: unterminated object at byte 6"},
        {"[]", "is not a JSON object"},
        {QByteArray((4 << 20) + 1, ' '), "is no small regular file"},
    };
    const TestFolder folder;
    WriteGood(folder);
    for (const auto& row : rows) {
        folder.Write(file, row.content);
        const EnvironmentFiles files(folder.Path());
        EXPECT_EQ(files.Faults(), QStringList{folder.Path(file) + QLatin1Char(' ') + QString::fromLatin1(row.fault)});
        EXPECT_EQ(files.EndPoint(QStringLiteral("qa"), QStringLiteral("structure")), QString());
        EXPECT_EQ(files.KnownEnvironments().size(), 3);
    }
}

TEST(EnvironmentFiles, NameAFolderInAFilesPlace)
{
    const TestFolder folder;
    QDir().mkpath(folder.Path(QStringLiteral("nuq_env_config/nuq_env_config.json")));
    folder.Write(QStringLiteral("nuq_env_config/wab_endpoints.json"), "{}");
    EXPECT_EQ(EnvironmentFiles(folder.Path()).Faults(),
        QStringList{folder.Path(QStringLiteral("nuq_env_config/nuq_env_config.json is no small regular file"))});
}

TEST(EnvironmentFiles, AcceptAByteOrderMark)
{
    const TestFolder folder;
    WriteGood(folder);
    folder.Write(QStringLiteral("nuq_env_config/map.json"), "\xEF\xBB\xBF{\"one\":\"x\"}");
    const EnvironmentFiles files(folder.Path());
    EXPECT_EQ(files.KnownEnvironments(), QStringList{QStringLiteral("one")});
    EXPECT_EQ(files.Faults(), QStringList());
}

TEST(EnvironmentFiles, OfTheSampleAreWholeAndStandInTheShareFolder)
{
    for (const char* share : {SAMPLE_SHARE_FOLDER, BUILD_SHARE_FOLDER}) {
        const EnvironmentFiles files(QString::fromUtf8(share));
        EXPECT_EQ(files.Faults(), QStringList()) << share;
        EXPECT_EQ(files.KnownEnvironments(), (QStringList{QStringLiteral("prod"), QStringLiteral("qa")})) << share;
        EXPECT_EQ(files.EndPoint(QStringLiteral("prod"), QStringLiteral("structure")),
            QStringLiteral("http://127.0.0.1:8080/structure"));
        EXPECT_EQ(files.EndPoint(QStringLiteral("qa"), QStringLiteral("structure")),
            QStringLiteral("http://127.0.0.1:8080/qa/structure"));
    }
}

} // namespace
