#include "support/BuilderProcess.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

constexpr int LimitMilliseconds = 100'000;

BuilderRun Run(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(LimitMilliseconds)) << process.errorString().toStdString();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

} // namespace

BuilderRun RunBuilderProcess(const QStringList& arguments, const QProcessEnvironment& environment)
{
    return Run(QStringLiteral(SAMPLE_LIBRARY_BUILDER), arguments, environment);
}

BuilderRun RunShell(const QString& command)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("BUILDER"), QStringLiteral(SAMPLE_LIBRARY_BUILDER));
    return Run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}, environment);
}

std::map<std::string, std::string> FileDigests(const QString& folder)
{
    std::map<std::string, std::string> digests;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QCryptographicHash hash(QCryptographicHash::Sha256);
        hash.addData(&file);
        digests[QDir(folder).relativeFilePath(file.fileName()).toStdString()] = hash.result().toHex().toStdString();
    }
    return digests;
}
