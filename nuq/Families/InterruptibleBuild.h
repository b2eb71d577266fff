#pragma once

#include "FamilyFiles/BuildProgress.h"
#include "Output/ProgressLine.h"

#include <QString>

namespace nuq {

class Session;

/** Shows how far a body is built, on a terminal, and breaks off after Ctrl-C. */
class InterruptibleBuild final : public familyfiles::BuildProgress
{
public:
    /** @param what is built, for the line; by default just the body */
    explicit InterruptibleBuild(Session& session, const QString& what = QString());

    bool Report(double done) override;

    /** What is built next. */
    void SetSubject(const QString& what) { m_what = what; }

    /** Wipe the line; before anything else is written to the terminal. */
    void Clear() { m_line.Clear(); }

private:
    ProgressLine m_line;
    QString m_what;
};

} // namespace nuq
