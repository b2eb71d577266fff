#include "Diagnosis/ConfigurationCheck.h"

#include "support/RecordingHost.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

class ConfigurationCheckTest : public ::testing::Test
{
protected:
    ConfigurationCheckTest()
    {
        host.appService.appDir = folder.path().toStdWString();
        QDir(folder.path()).mkpath(QStringLiteral("nuq_env_config"));
        Write("nuq_env_config", R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json",
            "env_map":"/nuq_env_config/env_map.json"})");
        WriteXml("<envs><env name=\"qa\"/></envs>");
        Write("env_map", R"({"qa":"test","prod":"production"})");
        Write("pyx_env", R"({"production":{"api":"http://h/api","static":"http://h/static"}})");
    }

    QString Path(const char* name, const char* suffix = ".json") const
    {
        return folder.filePath(QStringLiteral("nuq_env_config/") + QLatin1String(name) + QLatin1String(suffix));
    }

    static void WriteFile(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void Write(const char* name, const QByteArray& content)
    {
        const bool isList = qstrcmp(name, "nuq_env_config") == 0;
        WriteFile(Path(isList ? "nuq_env_config" : name), content);
    }
    void WriteXml(const QByteArray& content) { WriteFile(Path("wab_env", ".xml"), content); }

    /// The checks that are not good, with their verdicts, in order.
    std::string NotGood()
    {
        std::string text;
        for (const Finding& finding : CheckConfiguration(folder.path())) {
            if (finding.verdict != Verdict::Good)
                text += finding.check.toStdString() + "=" + VerdictId(finding.verdict).toStdString() + " ";
        }
        return text;
    }

    std::string TextOf(const char* check)
    {
        for (const Finding& finding : CheckConfiguration(folder.path())) {
            if (finding.check == QLatin1String(check))
                return finding.text.toStdString();
        }
        return "no such check";
    }

    QTemporaryDir folder;
    testsupport::RecordingHost host;
};

TEST_F(ConfigurationCheckTest, FindsNothingInGoodFiles)
{
    const Findings findings = CheckConfiguration(folder.path());
    EXPECT_EQ(NotGood(), "");
    ASSERT_EQ(findings.size(), 7u);
    EXPECT_EQ(findings.at(5).check, QStringLiteral("endpoint.api"));
    EXPECT_EQ(findings.at(5).text, QStringLiteral("http://h/api"));
    EXPECT_EQ(findings.at(6).text, QStringLiteral("http://h/static"));
}

TEST_F(ConfigurationCheckTest, NamesTheMissingList)
{
    QFile::remove(Path("nuq_env_config"));
    EXPECT_EQ(NotGood(), "config.main=fault config.wab_env=skipped config.env_map=skipped config.pyx_env=skipped "
                         "config.environment=skipped endpoint.api=skipped endpoint.static=skipped ");
    EXPECT_EQ(TextOf("config.main"), Path("nuq_env_config").toStdString() + ": The file does not exist.");
}

TEST_F(ConfigurationCheckTest, NamesABrokenMap)
{
    Write("env_map", "{\"qa\":");
    EXPECT_EQ(
        NotGood(), "config.env_map=fault config.environment=skipped endpoint.api=skipped endpoint.static=skipped ");
    EXPECT_EQ(TextOf("config.env_map"),
        Path("env_map").toStdString() + ": The file is no valid JSON (at byte 6: unterminated object).");
}

TEST_F(ConfigurationCheckTest, NamesBrokenAddresses)
{
    Write("pyx_env", "[]");
    EXPECT_EQ(NotGood(), "config.pyx_env=fault endpoint.api=skipped endpoint.static=skipped ");
    EXPECT_EQ(TextOf("config.pyx_env"), Path("pyx_env").toStdString() + ": The file holds no JSON object.");
}

TEST_F(ConfigurationCheckTest, OnlyWarnsAboutTheDesignCloudsFile)
{
    WriteXml("<envs><env></envs>");
    EXPECT_EQ(NotGood(), "config.wab_env=warning ");
    EXPECT_EQ(TextOf("config.wab_env"), Path("wab_env", ".xml").toStdString() +
                                            ": The file is no valid XML (line 1: Opening and ending tag mismatch.).");
}

TEST_F(ConfigurationCheckTest, NamesAnEmptyFileAFolderAndAnEntryThatIsMissing)
{
    Write("pyx_env", " \n");
    EXPECT_EQ(TextOf("config.pyx_env"), Path("pyx_env").toStdString() + ": The file is empty.");
    QFile::remove(Path("pyx_env"));
    QDir().mkpath(Path("pyx_env"));
    EXPECT_EQ(TextOf("config.pyx_env"), Path("pyx_env").toStdString() + ": This is a folder, not a file.");
    Write("nuq_env_config", R"({"wab_env":"/nuq_env_config/wab_env.xml","env_map":"/nuq_env_config/env_map.json"})");
    EXPECT_EQ(TextOf("config.pyx_env"), "The list of environment files has no entry \"pyx_env\".");
}

TEST_F(ConfigurationCheckTest, NamesAnEnvironmentThatIsNotInTheMap)
{
    host.baseConfig.currentEnv = "Prod";
    EXPECT_EQ(NotGood(), "config.environment=fault endpoint.api=skipped endpoint.static=skipped ");
    EXPECT_EQ(TextOf("config.environment"), "The environment \"Prod\" is not in the map.");
}

TEST_F(ConfigurationCheckTest, NamesAMissingAndAWrongAddress)
{
    Write("pyx_env", R"({"production":{"api":"h:80/api"}})");
    EXPECT_EQ(NotGood(), "endpoint.api=fault endpoint.static=fault ");
    EXPECT_EQ(TextOf("endpoint.api"), "\"h:80/api\" is not a web address.");
    EXPECT_EQ(TextOf("endpoint.static"), "No address is configured.");
}

} // namespace
} // namespace componentlibrary
