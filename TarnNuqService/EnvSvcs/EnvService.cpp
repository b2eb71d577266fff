#include "EnvSvcs/EnvService.h"

#include "Common/DebugWarning.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "tarnnuq/AppService.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"
#include "wab/IBaseConfigManager.h"
#include "wab/IWabConfigManager.h"
#include "zept/StringUtil.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <exception>

namespace tarnnuq {

namespace {

constexpr WarningSource CurrentEnvSource{"EnvSvcs/EnvService.cpp", __LINE__, "tarnnuq::EnvService::GetWabCurrentEnv"};

QString Normalized(const QString& text)
{
    return text.trimmed().toLower();
}

/// Logs a configuration file's path, reads the file when it is there, logs its content and hands it on.
/// What is thrown on the way ends the step and keeps what it has stored so far; the file is closed in any case.
template <typename Use>
void ReadConfig(const char* name, const std::wstring& path, QIODevice::OpenMode mode, Use&& use)
{
    try {
        const QString caption = QString::fromLatin1(name);
        INuqLogger::Get()->Info({QString(caption + QLatin1String(" file path: ")), path});
        QFile file(QString::fromStdWString(path));
        if (!file.exists() || !file.open(mode)) {
            return;
        }
        const QByteArray content = file.readAll();
        INuqLogger::Get()->Info(
            {QString(caption + QLatin1String(":\r\n")), QString::fromUtf8(content.constData(), content.size())});
        use(file, content);
    } catch (const std::exception&) {
        return;
    }
}

template <typename Use>
void ReadJsonConfig(const char* name, const std::wstring& path, Use&& use)
{
    ReadConfig(name, path, QIODevice::ReadOnly,
        [&use](QFile&, const QByteArray& content) { use(QJsonDocument::fromJson(content).object()); });
}

void CollectAttributes(const QXmlStreamAttributes& attributes, std::map<std::wstring, std::wstring>& settings)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QString name = Normalized(attribute.name().toString());
        if (!name.isEmpty()) {
            settings[name.toStdWString()] = Normalized(attribute.value().toString()).toStdWString();
        }
    }
}

} // namespace

EnvService::EnvService() : m_appDir(AppService::GetAppDir())
{
    Init();
}

EnvService::~EnvService() = default;

EnvService& EnvService::GetInstance()
{
    static EnvService instance;
    return instance;
}

std::wstring EnvService::GetWabCurrentEnv()
{
    const wab::IBaseConfigManager* pConfigMgr = wab::IBaseConfigManager::Get();
    if (!pConfigMgr) {
        WarnNull(CurrentEnvSource, L"pConfigMgr为空");
        return {};
    }
    return zept::StringUtil::ToWString(pConfigMgr->GetCurrentEnv());
}

std::wstring EnvService::GetPyxCurrentEnv()
{
    return GetInstance().m_pyxCurrentEnv;
}

std::wstring EnvService::GetPyxApiEndPoint()
{
    EnvService& instance = GetInstance();
    if (instance.m_pyxApiEndPoint.empty()) {
        instance.m_pyxApiEndPoint = FindEndPoint(instance.m_pyxEndPoints, L"api");
    }
    return instance.m_pyxApiEndPoint;
}

std::wstring EnvService::GetPyxStaticEndPoint()
{
    EnvService& instance = GetInstance();
    if (instance.m_pyxStaticEndPoint.empty()) {
        instance.m_pyxStaticEndPoint = FindEndPoint(instance.m_pyxEndPoints, L"static");
    }
    return instance.m_pyxStaticEndPoint;
}

std::wstring EnvService::GetWabStructureEndPoint()
{
    const wab::IWabConfigManager* manager = wab::IWabConfigManager::Get();
    return manager ? manager->GetEndPoint(L"structure") : std::wstring();
}

void EnvService::Init()
{
    ParseNuqEnvConfig();
    ParseWabEnvConfig();
    ParsePyxEnvConfig();
}

void EnvService::ParseNuqEnvConfig()
{
    ReadJsonConfig(
        "nuq env config", m_appDir + L"/nuq_env_config/nuq_env_config.json", [this](const QJsonObject& config) {
            m_wabEnvConfigFile = TextMember(config, QLatin1String("wab_env"));
            m_pyxEnvConfigFile = TextMember(config, QLatin1String("pyx_env"));
            m_envMapFile = TextMember(config, QLatin1String("env_map"));
        });
}

void EnvService::ParseWabEnvConfig()
{
    m_wabCurrentEnv = GetWabCurrentEnv();
    if (m_wabEnvConfigFile.empty()) {
        return;
    }
    ReadConfig("wab env config", m_appDir + m_wabEnvConfigFile, QIODevice::ReadOnly | QIODevice::Text,
        [this](QFile& file, const QByteArray&) {
            file.seek(0);
            QXmlStreamReader reader(&file);
            while (!reader.atEnd()) {
                if (reader.readNext() == QXmlStreamReader::StartElement &&
                    Normalized(reader.name().toString()) == QLatin1String("env")) {
                    CollectAttributes(reader.attributes(), m_wabEnvSettings);
                }
            }
        });
}

void EnvService::ParsePyxEnvConfig()
{
    if (m_wabCurrentEnv.empty() || m_envMapFile.empty()) {
        return;
    }
    ParseEnvMap();
    if (m_pyxCurrentEnv.empty() || m_pyxEnvConfigFile.empty()) {
        return;
    }
    ParsePyxEndPoints();
}

void EnvService::ParseEnvMap()
{
    ReadJsonConfig("env map", m_appDir + m_envMapFile, [this](const QJsonObject& map) {
        m_pyxCurrentEnv = Normalized(map.value(QString::fromStdWString(m_wabCurrentEnv)).toString()).toStdWString();
    });
}

void EnvService::ParsePyxEndPoints()
{
    ReadJsonConfig("pyx env config", m_appDir + m_pyxEnvConfigFile, [this](const QJsonObject& environments) {
        const QJsonObject endPoints = environments.value(QString::fromStdWString(m_pyxCurrentEnv)).toObject();
        for (auto endPoint = endPoints.constBegin(); endPoint != endPoints.constEnd(); ++endPoint) {
            const QString key = Normalized(endPoint.key());
            if (!key.isEmpty()) {
                m_pyxEndPoints[key.toStdWString()] = endPoint.value().toString().toStdWString();
            }
        }
    });
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
std::wstring EnvService::FindEndPoint(std::map<std::wstring, std::wstring>& map, std::wstring key)
{
    const auto endPoint = map.find(key);
    return endPoint == map.end() ? std::wstring() : endPoint->second;
}

} // namespace tarnnuq
