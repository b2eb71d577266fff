#pragma once

#include "Settings/SettingsFile.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <functional>
#include <mutex>

namespace standalone {

/// The settings of the stand-alone host, with typed access.
///
/// A key is a path of member names joined by "/" ("log/fileLevel"). A value of another type than the one asked
/// for reads as the given default and stays in the file as it is, and so does everything that no key of ours
/// names. Numbers have the precision of a double, as JSON readers may rely on no more.
///
/// Getters answer from what was read last: at construction, by Reload, or by the last change made through this
/// object. Usable from several threads.
class SettingsStore
{
public:
    /// Reads the file. Nothing stops the start: whatever is wrong with the file is told by State and Detail.
    /// @param path the file's absolute path; need not exist
    explicit SettingsStore(const QString& path);

    QString Path() const;
    /// How the file was found by the last reading.
    SettingsState State() const;
    /// For a person: what was wrong at the last reading; empty when nothing was.
    QString Detail() const;

    QJsonValue Value(const QString& key) const; ///< Undefined when there is none.
    bool Contains(const QString& key) const;
    QString Text(const QString& key, const QString& fallback = QString()) const;
    bool Flag(const QString& key, bool fallback = false) const;
    int Integer(const QString& key, int fallback = 0) const; ///< A number that is no whole 32-bit one is a miss.
    double Number(const QString& key, double fallback = 0.0) const;
    QStringList Texts(const QString& key) const; ///< The texts of an array; other elements are left out.

    /// Writes one value into the file, making the objects on its path; a value of another type that stands in
    /// the way of the path is replaced by an object.
    /// @return why it could not be written, for a person; empty on success
    QString Set(const QString& key, const QJsonValue& value);

    /// Removes one value from the file; the objects on its path stay.
    /// @return as Set; removing what is not there is a success
    QString Remove(const QString& key);

    /// Reads the file again, to see what other processes changed.
    void Reload();

private:
    QString Change(const std::function<void(QJsonObject&)>& change);

    SettingsFile m_file;
    std::mutex m_writeMutex;    ///< Held while the file is changed; getters do not wait for that.
    mutable std::mutex m_mutex; ///< Guards the reading.
    SettingsReading m_reading;
};

} // namespace standalone
