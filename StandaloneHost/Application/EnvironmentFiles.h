#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace standalone {

/// The environment files below an application folder, as far as the host itself reads them:
/// "/nuq_env_config/wab_endpoints.json" for the design cloud's endpoints, and the environment map that
/// "/nuq_env_config/nuq_env_config.json" names, for the list of environments that can be chosen.
///
/// Read once, at construction; immutable after it and usable from every thread. A file that is missing or broken
/// reads as empty and is named by Faults. A byte order mark at a file's beginning is accepted.
class EnvironmentFiles
{
public:
    /// @param applicationFolder without a slash at its end
    explicit EnvironmentFiles(const QString& applicationFolder);

    /// The names of the environment map, sorted: those for which the library finds base addresses.
    QStringList KnownEnvironments() const;

    /// The address of a design-cloud endpoint in an environment; empty when the files give none.
    QString EndPoint(const QString& environment, const QString& name) const;

    /// What is wrong with the files, for a person, one text a file with its path; empty when all is well.
    QStringList Faults() const;

private:
    QJsonObject ReadObject(const QString& path);

    QStringList m_faults;
    QJsonObject m_environmentMap;
    QJsonObject m_endPoints;
};

} // namespace standalone
