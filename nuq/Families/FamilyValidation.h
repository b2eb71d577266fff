#pragma once

#include "Diagnosis/Finding.h"
#include "FamilyFiles/Reason.h"

#include <QString>
#include <string>
#include <vector>

namespace nuq {

class Session;

/** What one check of a family file has found. */
struct FamilyFinding
{
    /// What was checked: "file", "formulas", "types", "recipe", "geometry", "record", "pictures".
    std::string check;
    componentlibrary::Verdict verdict = componentlibrary::Verdict::Good;
    familyfiles::Reason reason; ///< for a fault or a warning
    QString text;               ///< for people, in their language
};

/** A family file checked through and through. */
struct ValidatedFamily
{
    QString file;
    std::vector<FamilyFinding> findings;

    bool HasFault() const;
};

/**
 * Open a family file, read all that is in it, work out every type, and build the geometry of each that differs. What
 * depends on a check that failed is left out. Ends early after Ctrl-C.
 * @param isQuick no geometry is built
 */
ValidatedFamily ValidateFamily(Session& session, const QString& file, bool isQuick);

} // namespace nuq
