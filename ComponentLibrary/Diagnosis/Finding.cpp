#include "Diagnosis/Finding.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace componentlibrary {
namespace {

struct Name
{
    const char* check;
    const char* title;
};

constexpr std::array<Name, 19> kNames = {{
    {"folder.application", QT_TRANSLATE_NOOP("Diagnosis", "application folder")},
    {"settings", QT_TRANSLATE_NOOP("Diagnosis", "settings")},
    {"config.main", QT_TRANSLATE_NOOP("Diagnosis", "environment files: list")},
    {"config.wab_env", QT_TRANSLATE_NOOP("Diagnosis", "environment files: design cloud")},
    {"config.env_map", QT_TRANSLATE_NOOP("Diagnosis", "environment files: map")},
    {"config.pyx_env", QT_TRANSLATE_NOOP("Diagnosis", "environment files: addresses")},
    {"config.environment", QT_TRANSLATE_NOOP("Diagnosis", "environment")},
    {"endpoint.api", QT_TRANSLATE_NOOP("Diagnosis", "address of the interface")},
    {"endpoint.static", QT_TRANSLATE_NOOP("Diagnosis", "address of static files")},
    {"token", QT_TRANSLATE_NOOP("Diagnosis", "token")},
    {"network.name", QT_TRANSLATE_NOOP("Diagnosis", "host name")},
    {"network.connection", QT_TRANSLATE_NOOP("Diagnosis", "connection")},
    {"network.tls", QT_TRANSLATE_NOOP("Diagnosis", "encryption")},
    {"service.sign_in", QT_TRANSLATE_NOOP("Diagnosis", "sign-in")},
    {"service.answer", QT_TRANSLATE_NOOP("Diagnosis", "answer of the service")},
    {"service.clock", QT_TRANSLATE_NOOP("Diagnosis", "clock")},
    {"static.thumbnail", QT_TRANSLATE_NOOP("Diagnosis", "thumbnails")},
    {"folder.log", QT_TRANSLATE_NOOP("Diagnosis", "log folder")},
    {"folder.cache", QT_TRANSLATE_NOOP("Diagnosis", "cache folder")},
}};

} // namespace

QString CheckTitle(const QString& check)
{
    for (const Name& name : kNames) {
        if (check == QLatin1String(name.check))
            return QCoreApplication::translate("Diagnosis", name.title);
    }
    return check;
}

QString VerdictId(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Good:
        return QStringLiteral("good");
    case Verdict::Warning:
        return QStringLiteral("warning");
    case Verdict::Fault:
        return QStringLiteral("fault");
    case Verdict::Skipped:
        break;
    }
    return QStringLiteral("skipped");
}

bool HasFault(const Findings& findings)
{
    return std::any_of(
        findings.begin(), findings.end(), [](const Finding& finding) { return finding.verdict == Verdict::Fault; });
}

} // namespace componentlibrary
