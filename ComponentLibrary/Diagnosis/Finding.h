#pragma once

#include <QString>

#include <vector>

namespace componentlibrary {

/** What a check came to. */
enum class Verdict
{
    Good,
    Warning, ///< works, but should be looked at
    Fault,   ///< has to be mended
    Skipped  ///< could not be checked because of another finding, or does not apply
};

/** The outcome of one check. */
struct Finding
{
    QString check; ///< stable name, for example "config.env_map"; CheckTitle gives the words for people
    Verdict verdict = Verdict::Good;
    QString text; ///< what was found, in the user's language
    QString hint; ///< what to mend; empty when nothing is wrong
    qint64 milliseconds = 0;
};

using Findings = std::vector<Finding>;

/** The name of a check in the user's language; the check's stable name when it is unknown. */
QString CheckTitle(const QString& check);

/** The stable word for a verdict: "good", "warning", "fault" or "skipped". */
QString VerdictId(Verdict verdict);

/** Whether any finding is a fault. */
bool HasFault(const Findings& findings);

} // namespace componentlibrary
