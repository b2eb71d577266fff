#pragma once

#include <QProcess>
#include <QStringList>
#include <string>

namespace cloudtest {

/// The program itself, as a user starts it.
class CloudProcess
{
public:
    /// @param environment further variables, as "NAME=value"
    explicit CloudProcess(const QStringList& arguments, const QStringList& environment = {});
    ~CloudProcess();
    CloudProcess(const CloudProcess&) = delete;
    CloudProcess& operator=(const CloudProcess&) = delete;

    /// Waits for the line that says it is ready; false when the program ended first.
    bool WaitUntilReady();

    /// From the ready line; 0 before.
    int Port() const { return m_port; }
    std::string ReadyLine() const { return m_readyLine; }

    void Terminate() { m_process.terminate(); }
    void Interrupt();

    /// Waits for the end; the exit status, -1 when it crashed or did not end in ten seconds.
    int WaitForEnd();

    /// What it wrote behind the ready line, and on standard error; complete after WaitForEnd.
    std::string Output() { return m_process.readAllStandardOutput().toStdString(); }
    std::string Errors() { return m_process.readAllStandardError().toStdString(); }

    QProcess& Process() { return m_process; }

private:
    QProcess m_process;
    std::string m_readyLine;
    int m_port = 0;
};

} // namespace cloudtest
