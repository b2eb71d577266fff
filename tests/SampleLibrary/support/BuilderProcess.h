#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <map>
#include <string>

/// What a run of the builder gave.
struct BuilderRun
{
    int ExitCode = -1;
    std::string Output;
    std::string Errors;
};

/// Runs sample-library-builder and waits for its end.
BuilderRun RunBuilderProcess(
    const QStringList& arguments, const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

/// Runs a shell command in which $BUILDER is the builder, and waits for its end.
BuilderRun RunShell(const QString& command);

/// SHA-256 of every file below @p folder by relative name, hidden ones included.
std::map<std::string, std::string> FileDigests(const QString& folder);
