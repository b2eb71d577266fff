#include "Application/StandaloneHost.h"

#include "Accounts/AccountService.h"
#include "Logging/HostLogger.h"
#include "Paths/UrlCache.h"
#include "Settings/SettingsStore.h"
#include "hostsdk/HostServices.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include "tarnnuq/AppService.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"
#include "tarnnuq/PathUtils.h"
#include "tarnnuq/UserService.h"
#include "wab/IBaseConfigManager.h"
#include "wab/IWabConfigManager.h"
#include "zept/DebugMessageMgr.h"
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <memory>

using standalone::HostDiagnosis;
using standalone::LogLevel;
using standalone::SettingsState;
using standalone::StandaloneHost;
using standalone::StandaloneHostOptions;

namespace {

class Host : public testing::Test
{
protected:
    Host()
    {
        for (const char* variable :
            {"NUQ_TOKEN", "NUQ_TOKEN_QA", "NUQ_TOKEN_FILE", "NUQ_TOKEN_QA_FILE", "NUQ_APP_DIR", "NUQ_ENVIRONMENT"}) {
            qunsetenv(variable);
        }
        m_options.programName = QStringLiteral("nuq");
        m_options.appDir = m_folder.Path(QStringLiteral("app"));
        m_options.configFolder = m_folder.Path(QStringLiteral("config"));
        m_options.cacheFolder = m_folder.Path(QStringLiteral("cache"));
        m_options.dataFolder = m_folder.Path(QStringLiteral("data"));
        m_options.stateFolder = m_folder.Path(QStringLiteral("state"));
        m_options.consoleLevel = LogLevel::Off;
    }

    void WriteSettings(const QByteArray& content) const
    {
        m_folder.Write(QStringLiteral("config/settings.json"), content);
    }

    void WriteEnvironmentFiles() const
    {
        m_folder.Write(
            QStringLiteral("app/nuq_env_config/nuq_env_config.json"), R"({"env_map":"/nuq_env_config/env_map.json"})");
        m_folder.Write(QStringLiteral("app/nuq_env_config/env_map.json"), R"({"qa":"test","prod":"production"})");
        m_folder.Write(QStringLiteral("app/nuq_env_config/wab_endpoints.json"),
            R"({"qa":{"structure":"http://h/qa"},"prod":{"structure":"http://h/prod"}})");
    }

    QString Log() const { return QString::fromUtf8(m_folder.Read(QStringLiteral("state/nuq.log"))); }

    TestFolder m_folder;
    StandaloneHostOptions m_options;
};

TEST_F(Host, AnswersTheLibrarysQuestions)
{
    WriteEnvironmentFiles();
    qputenv("NUQ_TOKEN", "the-token");
    qputenv("NUQ_TOKEN_QA", "the-qa-token");
    WriteSettings(R"({"permissions":{"p":2}})");
    const StandaloneHost host(m_options);
    EXPECT_EQ(tarnnuq::AppService::GetAppName(), L"nuq");
    EXPECT_EQ(tarnnuq::AppService::GetAppDir(), m_folder.Path(QStringLiteral("app")).toStdWString());
    EXPECT_EQ(tarnnuq::AppService::GetMajor(), tarnnuq::None);
    EXPECT_EQ(tarnnuq::AppService::Get()->GeFormattedProductVersion(L"0.0"), L"0.1");
    EXPECT_EQ(tarnnuq::UserService::Get()->GetToken(), L"the-token");
    EXPECT_EQ(tarnnuq::UserService::Get()->GetTokenInQa(), L"the-qa-token");
    EXPECT_EQ(tarnnuq::UserService::Get()->GetPermissionInCollaborationProject(L"p", L"MUZ"), 2);
    ASSERT_NE(wab::IBaseConfigManager::Get(), nullptr);
    EXPECT_EQ(wab::IBaseConfigManager::Get()->GetCurrentEnv(), "prod");
    ASSERT_NE(wab::IWabConfigManager::Get(), nullptr);
    EXPECT_EQ(wab::IWabConfigManager::Get()->GetEndPoint(L"structure"), L"http://h/prod");
    EXPECT_EQ(tarnnuq::PathUtils::GetThumbnailDownloadFilePath(L"abc", L".png"),
        m_folder
            .Path(
                QStringLiteral("cache/thumbnails/ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad.png"))
            .toStdWString());
    EXPECT_EQ(host.FamilyFileCache().Folder(), m_folder.Path(QStringLiteral("cache/families")));
}

TEST_F(Host, UsesTheEndPointsOfTheChosenEnvironment)
{
    WriteEnvironmentFiles();
    m_options.environment = QStringLiteral("qa");
    const StandaloneHost host(m_options);
    EXPECT_EQ(wab::IBaseConfigManager::Get()->GetCurrentEnv(), "qa");
    EXPECT_EQ(wab::IWabConfigManager::Get()->GetEndPoint(L"structure"), L"http://h/qa");
}

TEST_F(Host, LogsWhatTheLibrarySays)
{
    const StandaloneHost host(m_options);
    tarnnuq::INuqLogger::Get()->Info(QStringLiteral("request:http://h/风管"));
    zept::DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(
        "a.cpp", 1, "f", L"reply 为空", L"tarnnuq", L"2022-01-25");
    EXPECT_TRUE(Log().contains(QStringLiteral("] request:http://h/风管\n"))) << Log().toStdString();
    EXPECT_TRUE(Log().contains(QStringLiteral("] debug warning: reply 为空 (a.cpp:1, f, tarnnuq, 2022-01-25)\n")))
        << Log().toStdString();
}

TEST_F(Host, SaysAtTheStartWhatItUses)
{
    m_options.environment = QStringLiteral("qa");
    const StandaloneHost host(m_options);
    EXPECT_TRUE(Log().contains(QStringLiteral("[info]"))) << Log().toStdString();
    EXPECT_TRUE(Log().contains(QStringLiteral(
        "] nuq " PROJECT_VERSION " started; environment qa (option --environment), application folder %1 "
        "(option --app-dir)\n")
                                   .arg(m_folder.Path(QStringLiteral("app")))))
        << Log().toStdString();
}

TEST_F(Host, TakesItsObjectsOutAtTheEnd)
{
    qputenv("NUQ_TOKEN", "the-token");
    {
        const StandaloneHost host(m_options);
        EXPECT_NE(hostsdk::Installed().logger, nullptr);
    }
    EXPECT_EQ(hostsdk::Installed().logger, nullptr);
    EXPECT_EQ(hostsdk::Installed().userService, nullptr);
    EXPECT_EQ(tarnnuq::UserService::Get()->GetToken(), L"");
    EXPECT_EQ(wab::IBaseConfigManager::Get(), nullptr);
    tarnnuq::INuqLogger::Get()->Error(QStringLiteral("to nobody"));
    EXPECT_FALSE(Log().contains(QStringLiteral("to nobody")));
}

TEST_F(Host, LeavesALaterHostInPlaceAtItsEnd)
{
    auto first = std::make_unique<StandaloneHost>(m_options);
    m_options.programName = QStringLiteral("second");
    const StandaloneHost second(m_options);
    first.reset();
    EXPECT_EQ(tarnnuq::AppService::GetAppName(), L"second");
}

TEST_F(Host, BringsNoTokenIntoAnyFile)
{
    WriteEnvironmentFiles();
    qputenv("NUQ_TOKEN", "t0ken-production");
    qputenv("NUQ_TOKEN_QA", "t0ken-test");
    m_options.fileLevel = LogLevel::Trace;
    m_options.consoleLevel = LogLevel::Trace;
    testing::internal::CaptureStderr();
    {
        StandaloneHost host(m_options);
        const std::wstring token = tarnnuq::UserService::Get()->GetToken();
        const std::wstring qaToken = tarnnuq::UserService::Get()->GetTokenInQa();
        tarnnuq::INuqLogger* const logger = tarnnuq::INuqLogger::Get();
        logger->Debug({L"Authorization header: ", token});
        logger->Debug({L"Authorization header: ", L"bearer " + qaToken});
        logger->Info(std::wstring(L"the server repeats ") + token + L" and " + qaToken);
        logger->Error(std::wstring(L"http://h/?token=") + token);
        EXPECT_EQ(host.Settings().Set(QStringLiteral("a"), 1), QString());
        host.Diagnose();
    }
    const std::string console = testing::internal::GetCapturedStderr();
    EXPECT_NE(console.find("the server repeats *** and ***"), std::string::npos) << console;
    EXPECT_EQ(console.find("t0ken"), std::string::npos) << console;
    EXPECT_TRUE(m_folder.Files().contains(QStringLiteral("state/nuq.log")));
    EXPECT_EQ(m_folder.FilesWith("t0ken"), QStringList());
}

TEST_F(Host, TakesLevelsFromTheOptionsBeforeTheSettings)
{
    WriteSettings(R"({"log":{"fileLevel":"error","consoleLevel":"debug"}})");
    testing::internal::CaptureStderr();
    {
        const StandaloneHost host(m_options);
        tarnnuq::INuqLogger::Get()->Warn(QStringLiteral("one"));
        tarnnuq::INuqLogger::Get()->Error(QStringLiteral("two"));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(Log().contains(QStringLiteral("one")));
    EXPECT_TRUE(Log().contains(QStringLiteral("two")));
    m_options.fileLevel = LogLevel::Warning;
    m_options.consoleLevel.reset();
    testing::internal::CaptureStderr();
    {
        const StandaloneHost host(m_options);
        tarnnuq::INuqLogger::Get()->Debug(QStringLiteral("three"));
        tarnnuq::INuqLogger::Get()->Warn(QStringLiteral("four"));
    }
    EXPECT_NE(testing::internal::GetCapturedStderr().find("nuq: debug: three\n"), std::string::npos);
    EXPECT_FALSE(Log().contains(QStringLiteral("three")));
    EXPECT_TRUE(Log().contains(QStringLiteral("four")));
}

TEST_F(Host, TakesTheMajorFromTheOptionsBeforeTheSettings)
{
    WriteSettings(R"({"major":"hvac"})");
    {
        const StandaloneHost host(m_options);
        EXPECT_EQ(tarnnuq::AppService::GetMajor(), tarnnuq::Hvac);
    }
    m_options.major = tarnnuq::Electrical;
    const StandaloneHost host(m_options);
    EXPECT_EQ(tarnnuq::AppService::GetMajor(), tarnnuq::Electrical);
}

TEST_F(Host, SaysWhichSettingsItCannotUse)
{
    WriteSettings(R"({"major":"gas","environment":7,"log":{"fileLevel":"loud","consoleLevel":"off"}})");
    const StandaloneHost host(m_options);
    EXPECT_EQ(tarnnuq::AppService::GetMajor(), tarnnuq::None);
    EXPECT_EQ(Log().count(QStringLiteral("[warning]")), 3) << Log().toStdString();
    EXPECT_TRUE(Log().contains(QStringLiteral("the setting \"log/fileLevel\" is none of trace, debug, info, warning, "
                                              "error, off; its default is used")));
    EXPECT_TRUE(Log().contains(
        QStringLiteral("the setting \"major\" is none of none, plumbing, hvac, electrical; its default is used")));
    EXPECT_TRUE(Log().contains(QStringLiteral("the setting \"environment\" is none of")));
}

TEST_F(Host, StartsWithDamagedSettingsAndSaysSo)
{
    WriteSettings("damaged");
    const StandaloneHost host(m_options);
    const HostDiagnosis diagnosis = host.Diagnose();
    EXPECT_EQ(diagnosis.settingsState, SettingsState::SetAside);
    EXPECT_TRUE(Log().contains(
        QStringLiteral("] settings file %1: %2\n").arg(diagnosis.settingsFile, diagnosis.settingsDetail)))
        << Log().toStdString();
    EXPECT_EQ(m_folder.FilesWith("damaged").size(), 2); // The file and its name in the log.
}

TEST_F(Host, StartsWhenNoFolderCanBeMade)
{
    m_folder.Write(QStringLiteral("a file"), "x");
    const QString below = m_folder.Path(QStringLiteral("a file/x"));
    m_options.configFolder = m_options.cacheFolder = m_options.dataFolder = m_options.stateFolder = below;
    const StandaloneHost host(m_options);
    const HostDiagnosis diagnosis = host.Diagnose();
    EXPECT_EQ(tarnnuq::AppService::GetAppName(), L"nuq");
    EXPECT_EQ(diagnosis.logFile, QString());
    EXPECT_FALSE(diagnosis.logFault.isEmpty());
    EXPECT_EQ(diagnosis.settingsState, SettingsState::Missing);
}

TEST_F(Host, WarnsOfARefusedTokenOfItsEnvironmentOnly)
{
    const QString file = m_folder.Write(QStringLiteral("config/accounts/token-qa"), "secret-token");
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther));
    {
        const StandaloneHost host(m_options);
        EXPECT_FALSE(Log().contains(QStringLiteral("token"))) << Log().toStdString();
    }
    m_options.environment = QStringLiteral("QA");
    const StandaloneHost host(m_options);
    EXPECT_TRUE(Log().contains(
        QStringLiteral("] not signed in, token refused: the token file %1 can be read by others").arg(file)))
        << Log().toStdString();
    EXPECT_EQ(m_folder.FilesWith("secret-token"), QStringList{QStringLiteral("config/accounts/token-qa")});
}

TEST_F(Host, DiagnosesItself)
{
    WriteEnvironmentFiles();
    WriteSettings(R"({"environment":"qa"})");
    qputenv("NUQ_TOKEN", "the-token");
    const StandaloneHost host(m_options);
    const HostDiagnosis diagnosis = host.Diagnose();
    EXPECT_EQ(diagnosis.applicationFolder.value, m_folder.Path(QStringLiteral("app")));
    EXPECT_EQ(diagnosis.applicationFolder.originText, QStringLiteral("option --app-dir"));
    EXPECT_TRUE(diagnosis.applicationFolderExists);
    EXPECT_EQ(diagnosis.settingsFile, m_folder.Path(QStringLiteral("config/settings.json")));
    EXPECT_EQ(diagnosis.settingsState, SettingsState::Read);
    EXPECT_EQ(diagnosis.settingsDetail, QString());
    EXPECT_EQ(diagnosis.folders.config, m_folder.Path(QStringLiteral("config")));
    EXPECT_EQ(diagnosis.folders.cache, m_folder.Path(QStringLiteral("cache")));
    EXPECT_EQ(diagnosis.folders.data, m_folder.Path(QStringLiteral("data")));
    EXPECT_EQ(diagnosis.folders.state, m_folder.Path(QStringLiteral("state")));
    EXPECT_EQ(diagnosis.thumbnailFolder, m_folder.Path(QStringLiteral("cache/thumbnails")));
    EXPECT_EQ(diagnosis.logFile, m_folder.Path(QStringLiteral("state/nuq.log")));
    EXPECT_EQ(diagnosis.logFault, QString());
    EXPECT_EQ(diagnosis.productionToken.Text(), QStringLiteral("environment variable NUQ_TOKEN"));
    EXPECT_EQ(diagnosis.qaToken.Text(), QStringLiteral("none"));
    EXPECT_TRUE(diagnosis.currentIsQa);
    EXPECT_EQ(diagnosis.environment.value, QStringLiteral("qa"));
    EXPECT_EQ(diagnosis.environment.originText, QStringLiteral("settings"));
    EXPECT_EQ(diagnosis.knownEnvironments, (QStringList{QStringLiteral("prod"), QStringLiteral("qa")}));
    EXPECT_EQ(diagnosis.environmentFileFaults, QStringList());
}

TEST_F(Host, DiagnosesAMissingApplicationFolder)
{
    m_options.appDir = m_folder.Path(QStringLiteral("nowhere"));
    const StandaloneHost host(m_options);
    const HostDiagnosis diagnosis = host.Diagnose();
    EXPECT_FALSE(diagnosis.applicationFolderExists);
    EXPECT_EQ(diagnosis.knownEnvironments, QStringList());
    EXPECT_EQ(diagnosis.environmentFileFaults.size(), 2);
    EXPECT_EQ(Log().count(QStringLiteral("] environment file ")), 2) << Log().toStdString();
}

TEST_F(Host, UsesThePlatformsFoldersAndTheProgramsOwnWhenNoneAreGiven)
{
    qputenv("XDG_CONFIG_HOME", m_folder.Path(QStringLiteral("c")).toUtf8());
    qputenv("XDG_CACHE_HOME", m_folder.Path(QStringLiteral("h")).toUtf8());
    qputenv("XDG_DATA_HOME", m_folder.Path(QStringLiteral("d")).toUtf8());
    qputenv("XDG_STATE_HOME", m_folder.Path(QStringLiteral("s")).toUtf8());
    StandaloneHostOptions options;
    options.programName = QStringLiteral("nuq");
    options.consoleLevel = LogLevel::Off;
    const StandaloneHost host(options);
    const HostDiagnosis diagnosis = host.Diagnose();
    EXPECT_EQ(diagnosis.settingsFile, m_folder.Path(QStringLiteral("c/tarnnuq/settings.json")));
    EXPECT_EQ(diagnosis.thumbnailFolder, m_folder.Path(QStringLiteral("h/tarnnuq/thumbnails")));
    EXPECT_EQ(diagnosis.folders.data, m_folder.Path(QStringLiteral("d/tarnnuq")));
    EXPECT_EQ(diagnosis.logFile, m_folder.Path(QStringLiteral("s/tarnnuq/nuq.log")));
    EXPECT_EQ(diagnosis.applicationFolder.value,
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/tarnnuq")));
    EXPECT_EQ(diagnosis.applicationFolder.originText, QStringLiteral("installed share folder"));
}

TEST_F(Host, StoresATokenThatTheLibraryThenUses)
{
    const StandaloneHost host(m_options);
    EXPECT_EQ(host.Accounts().Store(standalone::TokenEnvironment::Production, QStringLiteral("new-token")), QString());
    EXPECT_EQ(tarnnuq::UserService::Get()->GetToken(), L"new-token");
    EXPECT_EQ(host.Diagnose().productionToken.Text(),
        QStringLiteral("file ") + m_folder.Path(QStringLiteral("config/accounts/token-prod")));
}

} // namespace
