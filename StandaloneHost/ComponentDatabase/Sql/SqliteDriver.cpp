#include "ComponentDatabase/Sql/SqliteDriver.h"

#include "ComponentDatabase/Sql/SqlFault.h"

#include <QLibraryInfo>
#include <QPluginLoader>
#include <QSqlDriver>
#include <QSqlDriverPlugin>

namespace componentdatabase {

std::unique_ptr<QSqlDriver> MakeSqliteDriver()
{
    // The loader unloads nothing when it goes away.
    QPluginLoader loader(QLibraryInfo::location(QLibraryInfo::PluginsPath) + QStringLiteral("/sqldrivers/libqsqlite"));
    auto* const plugin = qobject_cast<QSqlDriverPlugin*>(loader.instance());
    std::unique_ptr<QSqlDriver> driver(plugin == nullptr ? nullptr : plugin->create(QStringLiteral("QSQLITE")));
    if (driver == nullptr) {
        throw SqlFault(0, QStringLiteral("Qt's SQLite driver cannot be loaded: ") + loader.errorString());
    }
    return driver;
}

} // namespace componentdatabase
