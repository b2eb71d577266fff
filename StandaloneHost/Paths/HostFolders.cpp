#include "Paths/HostFolders.h"

#include <QDir>
#include <QStandardPaths>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <pwd.h>
#include <unistd.h>
#endif

namespace standalone {

namespace {

QString Below(const QString& base)
{
    return QDir::cleanPath(base + QStringLiteral("/tarnnuq"));
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

/// The home folder; without a usable HOME the one of the user database, because Qt would answer "/".
QString HomeFolder()
{
    QString home = qEnvironmentVariable("HOME");
    if (QDir::isAbsolutePath(home)) {
        return home;
    }
    const passwd* const entry = ::getpwuid(::getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? QString::fromLocal8Bit(entry->pw_dir) : QDir::homePath();
}

/// Qt 5's QStandardPaths takes relative values of these variables, against the base directory rules.
QString XdgFolder(const char* variable, const char* belowHome)
{
    const QString folder = qEnvironmentVariable(variable);
    if (QDir::isAbsolutePath(folder)) {
        return Below(folder);
    }
    return Below(HomeFolder() + QLatin1Char('/') + QLatin1String(belowHome));
}

#endif

} // namespace

HostFolders HostFolders::OfThePlatform()
{
    HostFolders folders;
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    folders.config = XdgFolder("XDG_CONFIG_HOME", ".config");
    folders.cache = XdgFolder("XDG_CACHE_HOME", ".cache");
    folders.data = XdgFolder("XDG_DATA_HOME", ".local/share");
    folders.state = XdgFolder("XDG_STATE_HOME", ".local/state");
#else
    folders.config = Below(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    folders.cache = Below(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    folders.data = Below(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    folders.state = folders.data + QStringLiteral("/state");
#endif
    return folders;
}

} // namespace standalone
