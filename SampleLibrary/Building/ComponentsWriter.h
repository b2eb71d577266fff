#pragma once

#include <QString>
#include <atomic>

namespace samplelibrary {

/// Writes components.db, the database of the stand-alone host, from the finished catalogue.db beside it in @p folder:
/// so both say the same. Throws BuildInterrupted when @p isStopped becomes true, BuildError when the file cannot be
/// written.
void WriteComponents(const QString& folder, const std::atomic<bool>& isStopped);

} // namespace samplelibrary
