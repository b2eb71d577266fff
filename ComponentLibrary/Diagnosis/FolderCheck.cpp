#include "Diagnosis/FolderCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryFile>

namespace componentlibrary {

Finding CheckFolder(const QString& check, const QString& folder)
{
    QElapsedTimer timer;
    timer.start();
    QTemporaryFile file(folder + QStringLiteral("/check-XXXXXX"));
    const bool works =
        QDir().mkpath(folder) && file.open() && file.write("check") == 5 && file.flush() && file.remove();
    Finding finding{check, Verdict::Good, folder, QString(), timer.elapsed()};
    if (works)
        return finding;
    finding.verdict = Verdict::Fault;
    finding.text =
        QCoreApplication::translate("Diagnosis", "%1 cannot be written to: %2").arg(folder, file.errorString());
    finding.hint =
        QCoreApplication::translate("Diagnosis", "Check the rights of the folder and the space on its disk.");
    return finding;
}

} // namespace componentlibrary
