#pragma once

#include "ComponentDatabase/Sql/Connection.h"

namespace componentdatabase {

/// Marks the files of this kind ("TNCD").
constexpr int ApplicationId = 0x544E4344;

/// The version of the tables that this program reads and writes.
int LatestVersion();

/// The version of the tables in the file; 0 for an empty one.
int VersionOf(const Connection& connection);

/// Brings the tables up to date, each step in one transaction: a process that is killed leaves the file at some
/// version, never between two. Several processes may do so at once. Throws SqlFault.
/// @param target the version to stop at, for tests; by default the latest
void Migrate(const Connection& connection, int target = LatestVersion());

} // namespace componentdatabase
