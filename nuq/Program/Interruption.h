#pragma once

#include "Program/ExitCode.h"

#include <QObject>

class QSocketNotifier;

namespace nuq {

/**
 * Ctrl-C and a request to terminate, as a signal of the event loop.
 *
 * While it lives, the first of them is reported here, so that the command can end cleanly; a second one has the
 * system's own effect. SIGPIPE is ignored for good: a closed pipe shows as a failed write. One object a process.
 */
class Interruption : public QObject
{
    Q_OBJECT

public:
    explicit Interruption(QObject* parent = nullptr);
    ~Interruption() override;

    /** Whether one of the signals has arrived; also right when no event loop is running. */
    static bool HasHappened();

    /** The exit code that tells of the signal. */
    static ExitCode Code();

signals:
    void Happened();

private:
    void OnReadable();

    int m_pipe[2] = {-1, -1};
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace nuq
