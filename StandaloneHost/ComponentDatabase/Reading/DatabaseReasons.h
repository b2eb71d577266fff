#pragma once

#include "ComponentDatabase/DatabaseReason.h"
#include "ComponentDatabase/Sql/SqlFault.h"

namespace componentdatabase {

// The reasons for which a database is refused, one function each. Paths and details come from outside and are shown as
// they are.

DatabaseReason MissingReason(const QString& path);
DatabaseReason NoFileReason(const QString& path);
DatabaseReason EmptyReason(const QString& path);
DatabaseReason UnreadableReason(const QString& path, const QString& detail);
DatabaseReason ForeignReason(const QString& path);
DatabaseReason NewerReason(const QString& path, int version, int known);
DatabaseReason OlderReason(const QString& path, int version, int known);
DatabaseReason ReadOnlyReason(const QString& path);
DatabaseReason DamagedReason(const QString& path, const QString& detail);

/// What the engine said, in words for people.
DatabaseReason ReasonOf(const QString& path, const SqlFault& fault);

} // namespace componentdatabase
