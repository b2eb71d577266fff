#include "Logging/DebugWarnings.h"

#include "tarnnuq/NuqLogObject.h"

#include <QString>

namespace standalone {

DebugWarnings::DebugWarnings(tarnnuq::INuqLogger& logger) : m_logger(logger) {}

void DebugWarnings::ShowDebugWarn(const char* file, int line, const char* function, const std::wstring& message,
    const std::wstring& author, const std::wstring& date)
{
    const QString text =
        QStringLiteral("debug warning: %1 (%2:%3, %4, %5, %6)")
            .arg(QString::fromStdWString(message), QString::fromUtf8(file), QString::number(line),
                QString::fromUtf8(function), QString::fromStdWString(author), QString::fromStdWString(date));
    m_logger.Warn(tarnnuq::NuqLogObject(text));
}

} // namespace standalone
