#include "support/NuqRunner.h"

#include <QDir>
#include <QFile>

namespace nuqtest {
namespace {

constexpr int kLimit = 20000;

void WriteFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

NuqRunner::NuqRunner()
{
    // A clean start: nothing of the developer's own surroundings may show.
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("HOME"), HomeFolder());
    environment.insert(QStringLiteral("NUQ_APP_DIR"), ApplicationFolder());
    environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("secret-of-the-test"));
    for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"}) {
        if (qEnvironmentVariableIsSet(name))
            environment.insert(QLatin1String(name), qEnvironmentVariable(name));
    }
    QDir().mkpath(HomeFolder());
}

void NuqRunner::PointAt(const QString& baseUrl)
{
    const QString folder = ApplicationFolder() + QStringLiteral("/nuq_env_config/");
    QDir().mkpath(folder);
    WriteFile(folder + QStringLiteral("nuq_env_config.json"),
        R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json",
            "env_map":"/nuq_env_config/env_map.json"})");
    WriteFile(folder + QStringLiteral("wab_env.xml"), "<envs><env name=\"qa\"/><env name=\"prod\"/></envs>");
    WriteFile(folder + QStringLiteral("env_map.json"), R"({"qa":"test","prod":"production"})");
    const QByteArray url = baseUrl.toUtf8();
    WriteFile(folder + QStringLiteral("pyx_env.json"),
        "{\"production\":{\"api\":\"" + url + "/api\",\"static\":\"" + url + "/static\"}}");
    WriteFile(folder + QStringLiteral("wab_endpoints.json"), "{\"prod\":{\"structure\":\"" + url + "/structure\"}}");
}

QString NuqRunner::Program()
{
    return QStringLiteral(NUQ_PROGRAM);
}

std::unique_ptr<QProcess> NuqRunner::Start(const QStringList& arguments) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(m_folder.path());
    process->start(Program(), arguments);
    process->closeWriteChannel();
    return process;
}

NuqResult NuqRunner::Run(const QStringList& arguments) const
{
    const auto process = Start(arguments);
    NuqResult result;
    if (process->waitForFinished(kLimit) && process->exitStatus() == QProcess::NormalExit)
        result.code = process->exitCode();
    result.out = process->readAllStandardOutput().toStdString();
    result.err = process->readAllStandardError().toStdString();
    return result;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

} // namespace nuqtest
