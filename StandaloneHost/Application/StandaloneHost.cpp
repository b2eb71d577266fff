#include "Application/StandaloneHost.h"

#include "Accounts/AccountService.h"
#include "Application/ApplicationFolder.h"
#include "Application/ApplicationService.h"
#include "Application/CurrentEnvironment.h"
#include "Application/DesignCloudEndPoints.h"
#include "Application/EnvironmentFiles.h"
#include "Application/LibraryFolder.h"
#include "Application/MajorText.h"
#include "Application/ProductVersion.h"
#include "ComponentDatabase/HostObjects/LocalCategories.h"
#include "ComponentDatabase/HostObjects/LocalLegends.h"
#include "ComponentDatabase/HostObjects/ProductPaths.h"
#include "FamilyFiles/FamilyFileFactory.h"
#include "Logging/DebugWarnings.h"
#include "Logging/HostLogger.h"
#include "Logging/LogMask.h"
#include "Paths/ThumbnailPaths.h"
#include "Paths/UrlCache.h"
#include "Settings/SettingsStore.h"
#include "hostsdk/HostServices.h"
#include "tarnnuq/NuqLogObject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace standalone {

namespace {

QString FolderOr(const QString& given, const QString& ofThePlatform)
{
    return given.isEmpty() ? ofThePlatform : QDir::cleanPath(QDir::current().absoluteFilePath(given));
}

HostFolders FoldersFrom(const StandaloneHostOptions& options)
{
    const HostFolders platform = HostFolders::OfThePlatform();
    HostFolders folders;
    folders.config = FolderOr(options.configFolder, platform.config);
    folders.cache = FolderOr(options.cacheFolder, platform.cache);
    folders.data = FolderOr(options.dataFolder, platform.data);
    folders.state = FolderOr(options.stateFolder, platform.state);
    return folders;
}

QString ProgramFolder(const StandaloneHostOptions& options)
{
    return options.programFolder.isEmpty() ? QCoreApplication::applicationDirPath() : options.programFolder;
}

ResolvedSetting ApplicationFolderFrom(const StandaloneHostOptions& options)
{
    return FindApplicationFolder(options.appDir, ProgramFolder(options));
}

LogLevel LevelFrom(
    const std::optional<LogLevel>& given, const SettingsStore& settings, const QString& key, LogLevel fallback)
{
    return given ? *given : LogLevelFromText(settings.Text(key)).value_or(fallback);
}

LogOptions LogOptionsFrom(
    const StandaloneHostOptions& options, const HostFolders& folders, const SettingsStore& settings)
{
    LogOptions log;
    log.name = options.programName;
    log.folder = folders.state;
    log.fileLevel = LevelFrom(options.fileLevel, settings, QStringLiteral("log/fileLevel"), log.fileLevel);
    log.consoleLevel = LevelFrom(options.consoleLevel, settings, QStringLiteral("log/consoleLevel"), log.consoleLevel);
    return log;
}

tarnnuq::Major MajorFrom(const StandaloneHostOptions& options, const SettingsStore& settings)
{
    return options.major ? *options.major
                         : MajorFromText(settings.Text(QStringLiteral("major"))).value_or(tarnnuq::None);
}

/// Settings that are there but say nothing known, as texts for the log.
QStringList SettingsFaults(const SettingsStore& settings)
{
    QStringList faults;
    const auto check = [&](const QString& key, bool isKnown, const char* choice) {
        if (settings.Contains(key) && !isKnown) {
            faults += QStringLiteral("the setting \"%1\" is none of %2; its default is used")
                          .arg(key, QString::fromLatin1(choice));
        }
    };
    for (const QString& key : {QStringLiteral("log/fileLevel"), QStringLiteral("log/consoleLevel")}) {
        check(key, LogLevelFromText(settings.Text(key)).has_value(), "trace, debug, info, warning, error, off");
    }
    const QString major = QStringLiteral("major");
    check(major, MajorFromText(settings.Text(major)).has_value(), "none, plumbing, hvac, electrical");
    const QString environment = QStringLiteral("environment");
    check(environment, settings.Value(environment).isString(), "the environments' names");
    return faults;
}

} // namespace

/// The members stand in the order in which they need each other.
struct StandaloneHost::Parts
{
    explicit Parts(const StandaloneHostOptions& options)
        : folders(FoldersFrom(options)), settings(folders.config + QStringLiteral("/settings.json")),
          logger(LogOptionsFrom(options, folders, settings)), debugWarnings(logger),
          applicationFolder(ApplicationFolderFrom(options)),
          application(options.programName, applicationFolder.value, MajorFrom(options, settings)),
          accounts(
              folders.config, settings, [spMask = logger.Mask()](const QString& token) { spMask->AddSecret(token); }),
          thumbnails(folders.cache), familyFileCache(folders.cache + QStringLiteral("/families")),
          environment(options.environment, settings), environmentFiles(applicationFolder.value),
          endPoints(environmentFiles, environment.Resolved().value),
          libraryFolder(FindLibraryFolder(settings, applicationFolder.value, ProgramFolder(options))),
          database(libraryFolder.value + QStringLiteral("/components.db"),
              [this](const componentdatabase::DatabaseReason& reason) { logger.Warn(reason.english); }),
          categories(database, options.language != QLatin1String("en")), legends(database), productPaths(database)
    {
    }

    hostsdk::HostServices Table()
    {
        hostsdk::HostServices table;
        table.logger = &logger;
        table.debugMessages = &debugWarnings;
        table.appService = &application;
        table.userService = &accounts;
        table.paths = &thumbnails;
        table.baseConfig = &environment;
        table.wabConfig = &endPoints;
        table.categoryInfo = &categories;
        table.componentSql = &legends;
        table.filePaths = &productPaths;
        table.familyFiles = &familyFiles;
        return table;
    }

    void LogStart(const QString& programName);

    HostFolders folders;
    SettingsStore settings;
    HostLogger logger;
    DebugWarnings debugWarnings;
    ResolvedSetting applicationFolder;
    ApplicationService application;
    AccountService accounts;
    ThumbnailPaths thumbnails;
    UrlCache familyFileCache;
    CurrentEnvironment environment;
    EnvironmentFiles environmentFiles;
    DesignCloudEndPoints endPoints;
    ResolvedSetting libraryFolder;
    componentdatabase::LocalDatabase database;
    componentdatabase::LocalCategories categories;
    componentdatabase::LocalLegends legends;
    componentdatabase::ProductPaths productPaths;
    familyfiles::FamilyFileFactory familyFiles;
};

void StandaloneHost::Parts::LogStart(const QString& programName)
{
    logger.Info(QStringLiteral("%1 %2 started; environment %3 (%4), application folder %5 (%6)")
                    .arg(programName, ProductVersion(), environment.Resolved().value, environment.Resolved().originText,
                        applicationFolder.value, applicationFolder.originText));
    if (!settings.Detail().isEmpty()) {
        logger.Warn(QStringLiteral("settings file %1: %2").arg(settings.Path(), settings.Detail()));
    }
    for (const QString& fault : SettingsFaults(settings)) {
        logger.Warn(fault);
    }
    for (const QString& fault : environmentFiles.Faults()) {
        logger.Info(QStringLiteral("environment file ") + fault);
    }
    const TokenOrigin token = accounts.Origin(environment.IsQa() ? TokenEnvironment::Qa : TokenEnvironment::Production);
    if (token.kind == TokenOrigin::Kind::Refused) {
        logger.Warn(QStringLiteral("not signed in, token ") + token.Text());
    }
}

StandaloneHost::StandaloneHost(const StandaloneHostOptions& options) : m_parts(std::make_unique<Parts>(options))
{
    m_parts->LogStart(options.programName);
    hostsdk::Install(m_parts->Table());
}

StandaloneHost::~StandaloneHost()
{
    if (hostsdk::Installed().logger == &m_parts->logger) {
        hostsdk::Install({});
    }
}

SettingsStore& StandaloneHost::Settings()
{
    return m_parts->settings;
}

const AccountService& StandaloneHost::Accounts() const
{
    return m_parts->accounts;
}

HostLogger& StandaloneHost::Logger()
{
    return m_parts->logger;
}

const familyfiles::FamilyFileFactory& StandaloneHost::FamilyFiles() const
{
    return m_parts->familyFiles;
}

const componentdatabase::LocalDatabase& StandaloneHost::Database() const
{
    return m_parts->database;
}

const UrlCache& StandaloneHost::FamilyFileCache() const
{
    return m_parts->familyFileCache;
}

HostDiagnosis StandaloneHost::Diagnose() const
{
    HostDiagnosis diagnosis;
    diagnosis.applicationFolder = m_parts->applicationFolder;
    diagnosis.applicationFolderExists = QFileInfo(m_parts->applicationFolder.value + QLatin1Char('/')).isDir();
    diagnosis.settingsFile = m_parts->settings.Path();
    diagnosis.settingsState = m_parts->settings.State();
    diagnosis.settingsDetail = m_parts->settings.Detail();
    diagnosis.folders = m_parts->folders;
    diagnosis.thumbnailFolder = m_parts->thumbnails.Folder();
    diagnosis.logFile = m_parts->logger.FilePath();
    diagnosis.logFault = m_parts->logger.FileFault();
    diagnosis.productionToken = m_parts->accounts.Origin(TokenEnvironment::Production);
    diagnosis.qaToken = m_parts->accounts.Origin(TokenEnvironment::Qa);
    diagnosis.currentIsQa = m_parts->environment.IsQa();
    diagnosis.environment = m_parts->environment.Resolved();
    diagnosis.knownEnvironments = m_parts->environmentFiles.KnownEnvironments();
    diagnosis.environmentFileFaults = m_parts->environmentFiles.Faults();
    return diagnosis;
}

} // namespace standalone
