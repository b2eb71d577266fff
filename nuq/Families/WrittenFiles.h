#pragma once

#include "Program/ExitCode.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class QImage;

namespace nuq {

class Session;

/** The files that a command writes, and how it tells of them: one path a line, or the document's member "files". */
class WrittenFiles
{
public:
    explicit WrittenFiles(Session& session) : m_session(session) {}

    /** Write a file as a whole or not at all. @return false with Code() set */
    bool Write(const QString& path, const QByteArray& bytes);

    /** Write a picture as PNG. */
    bool Write(const QString& path, const QImage& picture);

    /** A file that something else has written. */
    void Add(const QString& path) { m_paths << path; }

    /** Tell what was written. @return the exit code of the command */
    ExitCode Tell();

    ExitCode Code() const { return m_code; }

private:
    Session& m_session;
    QStringList m_paths;
    ExitCode m_code = ExitCode::Done;
};

} // namespace nuq
