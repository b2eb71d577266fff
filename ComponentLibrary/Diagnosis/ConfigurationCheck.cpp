#include "Diagnosis/ConfigurationCheck.h"

#include "EnvSvcs/EnvService.h"
#include "Errors/AddressText.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QXmlStreamReader>

namespace componentlibrary {
namespace {

constexpr qint64 kLargestFile = qint64{16} << 20;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Diagnosis", text);
}

/// One configuration file: what is wrong with it, and what it holds when nothing is.
struct FileReading
{
    QString path;
    QString fault;
    QByteArray content;
    QJsonObject object;
};

FileReading ReadFile(const QString& path)
{
    FileReading reading;
    reading.path = path;
    QFile file(path);
    if (!QFileInfo::exists(path))
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file does not exist."));
    else if (QFileInfo(path).isDir())
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "This is a folder, not a file."));
    else if (!file.open(QIODevice::ReadOnly))
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file cannot be read."));
    else if (file.size() > kLargestFile)
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file is far too large."));
    else
        reading.content = file.readAll();
    if (reading.fault.isEmpty() && reading.content.trimmed().isEmpty())
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file is empty."));
    return reading;
}

FileReading ReadJson(const QString& path)
{
    FileReading reading = ReadFile(path);
    if (!reading.fault.isEmpty())
        return reading;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(reading.content, &error);
    if (error.error != QJsonParseError::NoError)
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file is no valid JSON (at byte %1: %2)."))
                            .arg(error.offset)
                            .arg(error.errorString());
    else if (!document.isObject())
        reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file holds no JSON object."));
    reading.object = document.object();
    return reading;
}

FileReading ReadXml(const QString& path)
{
    FileReading reading = ReadFile(path);
    QXmlStreamReader xml(reading.content);
    while (reading.fault.isEmpty() && !xml.atEnd()) {
        xml.readNext();
        if (xml.hasError())
            reading.fault = Tr(QT_TRANSLATE_NOOP("Diagnosis", "The file is no valid XML (line %1: %2)."))
                                .arg(xml.lineNumber())
                                .arg(xml.errorString());
    }
    return reading;
}

Finding FileFinding(const char* check, const FileReading& reading, Verdict faultVerdict = Verdict::Fault)
{
    if (reading.fault.isEmpty())
        return {QString::fromLatin1(check), Verdict::Good, reading.path, QString()};
    return {QString::fromLatin1(check), faultVerdict, reading.path + QStringLiteral(": ") + reading.fault,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "Restore the file from the installation."))};
}

Finding Skipped(const char* check)
{
    return {QString::fromLatin1(check), Verdict::Skipped,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "not checked because of the fault above")), QString()};
}

/// A file that the list names; "" in the list is a fault of the list.
Finding NamedFileFinding(const char* check, const char* key, const QString& folder, const QJsonObject& list,
    FileReading (*read)(const QString&), Verdict faultVerdict = Verdict::Fault)
{
    const QString name = list.value(QLatin1String(key)).toString();
    if (name.isEmpty())
        return {QString::fromLatin1(check), faultVerdict,
            Tr(QT_TRANSLATE_NOOP("Diagnosis", "The list of environment files has no entry \"%1\"."))
                .arg(QString::fromLatin1(key)),
            Tr(QT_TRANSLATE_NOOP("Diagnosis", "Restore the file from the installation."))};
    return FileFinding(check, read(folder + name), faultVerdict);
}

Finding EnvironmentFinding(const QString& folder, const QJsonObject& list)
{
    using tarnnuq::EnvService;
    const QString check = QStringLiteral("config.environment");
    const QString environment = QString::fromStdWString(EnvService::GetWabCurrentEnv());
    if (!EnvService::GetPyxCurrentEnv().empty())
        return {check, Verdict::Good, environment, QString()};
    const QJsonObject map = ReadJson(folder + list.value(QLatin1String("env_map")).toString()).object;
    return {check, Verdict::Fault,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "The environment \"%1\" is not in the map.")).arg(environment),
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "Known environments: %1. Names are compared with letter case."))
            .arg(map.keys().join(QStringLiteral(", ")))};
}

bool IsWebAddress(const QUrl& url)
{
    const bool isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && isWeb && !url.host().isEmpty();
}

Finding EndPointFinding(const char* check, const std::wstring& endPoint)
{
    const QString text = QString::fromStdWString(endPoint);
    const QUrl url(text, QUrl::StrictMode);
    if (IsWebAddress(url))
        return {QString::fromLatin1(check), Verdict::Good, AddressText(url), QString()};
    const QString hint =
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "Write an http or https address into the file of the addresses."));
    if (text.isEmpty())
        return {QString::fromLatin1(check), Verdict::Fault,
            Tr(QT_TRANSLATE_NOOP("Diagnosis", "No address is configured.")), hint};
    return {QString::fromLatin1(check), Verdict::Fault,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "\"%1\" is not a web address.")).arg(text), hint};
}

bool HasFaultIn(const Findings& findings, const char* check)
{
    for (const Finding& finding : findings) {
        if (finding.check == QLatin1String(check))
            return finding.verdict == Verdict::Fault;
    }
    return false;
}

} // namespace

Findings CheckConfiguration(const QString& applicationFolder)
{
    using tarnnuq::EnvService;
    Findings findings;
    const FileReading list = ReadJson(applicationFolder + QStringLiteral("/nuq_env_config/nuq_env_config.json"));
    findings.push_back(FileFinding("config.main", list));
    if (HasFault(findings)) {
        for (const char* check : {"config.wab_env", "config.env_map", "config.pyx_env", "config.environment",
                 "endpoint.api", "endpoint.static"})
            findings.push_back(Skipped(check));
        return findings;
    }
    // The design cloud's file only adds settings; without it everything here still works.
    findings.push_back(
        NamedFileFinding("config.wab_env", "wab_env", applicationFolder, list.object, &ReadXml, Verdict::Warning));
    findings.push_back(NamedFileFinding("config.env_map", "env_map", applicationFolder, list.object, &ReadJson));
    findings.push_back(NamedFileFinding("config.pyx_env", "pyx_env", applicationFolder, list.object, &ReadJson));
    const bool hasMap = !HasFaultIn(findings, "config.env_map");
    findings.push_back(hasMap ? EnvironmentFinding(applicationFolder, list.object) : Skipped("config.environment"));
    const bool hasAddresses = !HasFault(findings);
    findings.push_back(
        hasAddresses ? EndPointFinding("endpoint.api", EnvService::GetPyxApiEndPoint()) : Skipped("endpoint.api"));
    findings.push_back(hasAddresses ? EndPointFinding("endpoint.static", EnvService::GetPyxStaticEndPoint())
                                    : Skipped("endpoint.static"));
    return findings;
}

} // namespace componentlibrary
