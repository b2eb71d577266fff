#pragma once

#include "Output/StandardError.h"

#include <QElapsedTimer>
#include <QString>

namespace nuq {

/**
 * One line on a terminal that says what is going on, and disappears when it is over.
 *
 * Silent for the first moments, so that quick answers do not flicker, and silent for good when it is not enabled.
 */
class ProgressLine
{
public:
    /** @param isEnabled whether standard error is a terminal and the user wants to see progress */
    ProgressLine(StandardError& error, bool isEnabled);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /** Show this text now, or later when it is too early; drawn at most ten times a second. */
    void Show(const QString& text);

    /** Wipe the line; before anything else is written to the terminal. */
    void Clear();

private:
    StandardError& m_error;
    const bool m_isEnabled;
    bool m_isShown = false;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceDrawn;
};

} // namespace nuq
