#include "Commands/LocalLibrary.h"

#include "Commands/Texts.h"
#include "ComponentDatabase/HostObjects/LocalDatabase.h"

namespace nuq {

using componentdatabase::DatabaseReason;

bool HasLocalLibrary(Session& session)
{
    return session.Host().Database().Get() != nullptr;
}

ExitCode FailLocally(Session& session, const DatabaseReason& reason)
{
    const bool isMissing = reason.code == QLatin1String("database.missing");
    const QString& sentence = session.Options().language == QLatin1String("zh") ? reason.chinese : reason.english;
    return session.Fail(isMissing ? ExitCode::NotFound : ExitCode::Failed, reason.code.toLatin1().constData(), sentence,
        isMissing
            ? Say(QT_TRANSLATE_NOOP("Messages",
                  "The environment variable NUQ_LIBRARY or the setting \"library\" names the folder of the library."))
            : QString());
}

ExitCode FailLocally(Session& session)
{
    return FailLocally(session, session.Host().Database().Fault());
}

ExitCode FailUnknownCategory(Session& session, const QString& code)
{
    return session.Fail(ExitCode::NotFound, "local.no_category",
        Say(QT_TRANSLATE_NOOP("Messages", "The library on this machine has no category \"%1\".")).arg(code),
        Say(QT_TRANSLATE_NOOP("Messages", "\"nuq tree\" lists the categories.")));
}

} // namespace nuq
