#include "Application/ApplicationFolder.h"

#include <QDir>

namespace standalone {

namespace {

QString Normalised(const QString& folder)
{
    QString path = QDir::cleanPath(QDir::current().absoluteFilePath(folder));
    if (path.endsWith(QLatin1Char('/'))) {
        path.chop(1);
    }
    return path;
}

} // namespace

ResolvedSetting FindApplicationFolder(const QString& given, const QString& programFolder)
{
    using Origin = ResolvedSetting::Origin;
    if (!given.isEmpty()) {
        return {Normalised(given), Origin::Option, QStringLiteral("option --app-dir")};
    }
    const QString variable = qEnvironmentVariable("NUQ_APP_DIR");
    if (!variable.isEmpty()) {
        return {Normalised(variable), Origin::EnvironmentVariable, QStringLiteral("environment variable NUQ_APP_DIR")};
    }
    return {Normalised(programFolder + QStringLiteral("/../share/tarnnuq")), Origin::Default,
        QStringLiteral("installed share folder")};
}

} // namespace standalone
