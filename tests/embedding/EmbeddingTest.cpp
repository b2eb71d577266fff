#include "support/LoopbackServer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using testsupport::LoopbackServer;
using testsupport::ScriptedResponse;

void WriteFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

void WriteEnvironment(const QString& appDir, const QString& url)
{
    ASSERT_TRUE(QDir(appDir).mkdir(QStringLiteral("nuq_env_config")));
    const QString folder = appDir + QLatin1String("/nuq_env_config/");
    WriteFile(folder + QLatin1String("nuq_env_config.json"),
        R"({"pyx_env":"/nuq_env_config/pyx_env.json","env_map":"/nuq_env_config/env_map.json"})");
    WriteFile(folder + QLatin1String("env_map.json"), R"({"prod":"production"})");
    WriteFile(folder + QLatin1String("pyx_env.json"), R"({"production":{"api":")" + url.toUtf8() + R"(/api"}})");
}

struct Outcome
{
    int exitCode;
    QString output;
    QString errors;
};

Outcome RunExample(const QString& appDir)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("NUQ_APP_DIR"), appDir);
    environment.insert(QStringLiteral("NUQ_TOKEN"), QStringLiteral("the-token"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EMBEDDING_EXAMPLE), QStringList());
    EXPECT_TRUE(process.waitForFinished(20000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

TEST(Embedding, TheDocumentedHostShowsTheCategories)
{
    LoopbackServer server;
    server.On("/api/v3/categories",
        ScriptedResponse::Json(R"({"code":"success","data":[{"id":1,"name":"a"},{"id":2,"name":"b"}]})"));
    const QTemporaryDir appDir;
    WriteEnvironment(appDir.path(), server.BaseUrl());

    const Outcome outcome = RunExample(appDir.path());

    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, QStringLiteral("2 categories\n"));
    EXPECT_EQ(outcome.errors, QString());
    EXPECT_EQ(server.Requests().at(0).Header("authorization"), "the-token");
}

TEST(Embedding, TheDocumentedHostTellsThatTheCloudRefused)
{
    LoopbackServer server;
    server.On("/api/v3/categories", ScriptedResponse::Json("{}", 401));
    const QTemporaryDir appDir;
    WriteEnvironment(appDir.path(), server.BaseUrl());

    const Outcome outcome = RunExample(appDir.path());

    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, QStringLiteral("0 categories\n"));
    EXPECT_TRUE(outcome.errors.startsWith(QStringLiteral("request error. code:401, message:")))
        << outcome.errors.toStdString();
}

} // namespace
