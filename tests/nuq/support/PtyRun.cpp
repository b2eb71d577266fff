#include "support/PtyRun.h"

#include "support/NuqRunner.h"

#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace nuqtest {
namespace {

/// Texts that live on both sides of the fork, as exec wants them.
class ArgumentList
{
public:
    explicit ArgumentList(const QStringList& texts)
    {
        for (const QString& text : texts)
            m_texts.push_back(text.toStdString());
        for (std::string& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }

    char** Data() { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

std::string ReadAll(int terminal)
{
    std::string text;
    char bytes[4096];
    // At the end of the program the read fails (EIO) instead of giving 0.
    for (ssize_t got = read(terminal, bytes, sizeof bytes); got > 0; got = read(terminal, bytes, sizeof bytes))
        text.append(bytes, static_cast<std::size_t>(got));
    return text;
}

} // namespace

PtyResult RunOnTerminal(const NuqRunner& runner, const QStringList& arguments)
{
    ArgumentList command(QStringList{NuqRunner::Program()} + arguments);
    ArgumentList environment(runner.environment.toStringList());
    winsize size{24, 80, 0, 0};
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        execve(command.Data()[0], command.Data(), environment.Data());
        _exit(127);
    }
    PtyResult result;
    result.text = Replaced(ReadAll(terminal), "\r\n", "\n");
    close(terminal);
    int status = 0;
    waitpid(child, &status, 0);
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace nuqtest
