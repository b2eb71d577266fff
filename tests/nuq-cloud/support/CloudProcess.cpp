#include "nuq-cloud/support/CloudProcess.h"

#include <QProcessEnvironment>
#include <csignal>
#include <cstdlib>

namespace cloudtest {
namespace {

constexpr int kLimitMilliseconds = 10000;

} // namespace

CloudProcess::CloudProcess(const QStringList& arguments, const QStringList& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : environment) {
        const int equals = variable.indexOf(QLatin1Char('='));
        variables.insert(variable.left(equals), variable.mid(equals + 1));
    }
    m_process.setProcessEnvironment(variables);
    m_process.start(QStringLiteral(NUQ_CLOUD_PROGRAM), arguments);
}

CloudProcess::~CloudProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool CloudProcess::WaitUntilReady()
{
    while (!m_process.canReadLine() && m_process.waitForReadyRead(kLimitMilliseconds)) {
    }
    m_readyLine = m_process.readLine().toStdString();
    const std::size_t colon = m_readyLine.rfind(':');
    m_port = colon == std::string::npos ? 0 : std::atoi(m_readyLine.c_str() + colon + 1);
    return m_port != 0;
}

void CloudProcess::Interrupt()
{
    ::kill(static_cast<pid_t>(m_process.processId()), SIGINT);
}

int CloudProcess::WaitForEnd()
{
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(kLimitMilliseconds)) {
        return -1;
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

} // namespace cloudtest
