#pragma once

#include <QString>

namespace componentdatabase {

/// Why a component database was refused, for programs and for people.
struct DatabaseReason
{
    /// Stable and short, for programs: "database.missing", "database.damaged" ... (docs/database.md lists them). Empty:
    /// no reason.
    QString code;
    /// One sentence, the file's name included.
    QString english;
    QString chinese;

    /// True when something was refused.
    explicit operator bool() const { return !code.isEmpty(); }
};

} // namespace componentdatabase
