#pragma once

#include "ComponentDatabase/DatabaseReason.h"
#include "Program/Session.h"

namespace nuq {

/** Whether the component database on this machine can be used. */
bool HasLocalLibrary(Session& session);

/** Tell why the component database on this machine cannot be used. @return the exit code */
ExitCode FailLocally(Session& session, const componentdatabase::DatabaseReason& reason);

/** FailLocally with the reason why the database was not opened. */
ExitCode FailLocally(Session& session);

/** Tell that the local tree has no such category. @return the exit code */
ExitCode FailUnknownCategory(Session& session, const QString& code);

} // namespace nuq
