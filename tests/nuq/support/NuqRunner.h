#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <string>

namespace nuqtest {

/// What a run of the program gave.
struct NuqResult
{
    int code = -1; ///< -1: crashed, or did not end in time
    std::string out;
    std::string err;
};

/// Runs the program as a process, with folders and an environment of its own.
class NuqRunner
{
public:
    NuqRunner();

    /// Writes environment files that point to a server; "/api" and "/static" are put behind its address.
    void PointAt(const QString& baseUrl);

    /// Runs the program to its end.
    NuqResult Run(const QStringList& arguments) const;

    /// Starts the program; the caller ends it.
    std::unique_ptr<QProcess> Start(const QStringList& arguments) const;

    /// The folder of the environment files; what stands beside it is the program's own.
    QString ApplicationFolder() const { return m_folder.filePath(QStringLiteral("app")); }
    /// Below it the program keeps settings, caches and logs.
    QString HomeFolder() const { return m_folder.filePath(QStringLiteral("home")); }

    static QString Program();

    QProcessEnvironment environment;

private:
    QTemporaryDir m_folder;
};

/// Replaces every occurrence, for ports and folders that change from run to run.
std::string Replaced(std::string text, const std::string& from, const std::string& to);

} // namespace nuqtest
