#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder that goes away with the test; its path holds a blank and Chinese letters.
class TestFolder
{
public:
    TestFolder();

    QString Path() const;
    QString Path(const QString& relative) const;

    /// Writes a file, making its folder.
    /// @return the file's path
    QString Write(const QString& relative, const QByteArray& content) const;

    QByteArray Read(const QString& relative) const;

    /// The files below the folder, hidden ones too, relative and sorted.
    QStringList Files() const;

    /// The files below the folder that hold these bytes anywhere.
    QStringList FilesWith(const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};
