#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace nuq {

/**
 * The standard output: the result and nothing else.
 *
 * Collects what is written and passes it on in large pieces. A reader that has gone (a closed pipe) is no error: the
 * rest is dropped and IsClosed tells the command that it may stop. SIGPIPE is ignored by the program.
 */
class StandardOutput
{
public:
    /** @param isInterrupted asked when a signal arrives while the reader is slow; true drops the rest */
    explicit StandardOutput(std::function<bool()> isInterrupted = [] { return false; });
    ~StandardOutput();
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    /** Collects short texts; a long one is passed on at once, behind what was collected. */
    void Write(std::string_view text);

    /** Pass everything on now. */
    void Flush();

    /** Whether the reader has gone. */
    bool IsClosed() const { return m_isClosed; }

    /** Why the output could not be written (a full disk), in the system's words; empty when all is well. */
    const std::string& Fault() const { return m_fault; }

private:
    void Send(std::string_view text);

    std::function<bool()> m_isInterrupted;
    std::string m_buffer;
    std::string m_fault;
    bool m_isClosed = false;
};

} // namespace nuq
