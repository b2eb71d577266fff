#include "Logging/LogLevel.h"

#include <QStringList>

namespace standalone {

namespace {

/// In the order of the enumeration.
QStringList Names()
{
    return {QStringLiteral("trace"), QStringLiteral("debug"), QStringLiteral("info"), QStringLiteral("warning"),
        QStringLiteral("error"), QStringLiteral("off")};
}

} // namespace

std::optional<LogLevel> LogLevelFromText(const QString& text)
{
    const QString name = text.trimmed().toLower();
    if (name == QLatin1String("warn")) {
        return LogLevel::Warning;
    }
    const int index = Names().indexOf(name);
    return index < 0 ? std::nullopt : std::optional<LogLevel>(static_cast<LogLevel>(index));
}

QString LogLevelText(LogLevel level)
{
    return Names().at(static_cast<int>(level));
}

} // namespace standalone
