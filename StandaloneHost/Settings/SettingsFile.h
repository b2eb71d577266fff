#pragma once

#include "Settings/SettingsReading.h"

#include <QString>
#include <functional>

namespace standalone {

/// The settings on disk: one JSON object in one file, which several processes may change at once.
///
/// A file is always replaced as a whole, so that a reader sees the old or the new one. Writers take turns by a
/// lock file beside it ("<file>.lock") and change what they find then, not what they read earlier: nobody's
/// change and no unknown key is lost. A byte order mark at the beginning is accepted.
///
/// Holds no state besides the path; usable from several threads.
class SettingsFile
{
public:
    /// A file above this size is not settings of ours and counts as damaged.
    static constexpr qint64 kLargestFile = qint64{16} << 20;

    /// @param path the file's absolute path; neither it nor its folder need exist
    explicit SettingsFile(const QString& path);

    QString Path() const;

    /// Reads the file. A damaged one is renamed to "<file>.damaged-<UTC time>[-<number>]" in its folder, unless
    /// another process has mended it meanwhile.
    SettingsReading Read() const;

    /// Changes the settings in one step: takes the lock, reads the file anew, applies the change and replaces
    /// the file. Makes the folder when it is missing. Waits up to five seconds for other writers.
    /// @param change gets the settings as they stand in the file
    /// @param after set to the settings as written; untouched on failure
    /// @return why nothing was changed, for a person; empty on success
    QString Update(const std::function<void(QJsonObject&)>& change, QJsonObject& after) const;

private:
    SettingsReading SetAside(const SettingsReading& damaged) const;
    SettingsReading ReadLocked() const;
    QString LockPath() const;

    QString m_path;
};

} // namespace standalone
