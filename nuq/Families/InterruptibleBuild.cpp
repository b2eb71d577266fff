#include "Families/InterruptibleBuild.h"

#include "Commands/Texts.h"
#include "Program/Session.h"

namespace nuq {

InterruptibleBuild::InterruptibleBuild(Session& session, const QString& what)
    : m_line(session.Error(), session.ShowsProgress()), m_what(what)
{
}

bool InterruptibleBuild::Report(double done)
{
    const QString percent = QString::number(static_cast<int>(done * 100));
    if (m_what.isEmpty())
        m_line.Show(Say(QT_TRANSLATE_NOOP("Messages", "Building the geometry ... %1 %")).arg(percent));
    else
        m_line.Show(Say(QT_TRANSLATE_NOOP("Messages", "Building the geometry of %1 ... %2 %")).arg(m_what, percent));
    return !Interruption::HasHappened();
}

} // namespace nuq
