#pragma once

#include "Categories/CategoryTree.h"
#include "Program/Session.h"

namespace nuq {

/** How asking the public category service ended. */
enum class ServiceAnswer
{
    Categories,
    Nothing,
    TimedOut,
    Interrupted
};

/**
 * Ask the library's own public category service and wait for its signal.
 *
 * The service has no time limit and reports no failure, so the wait ends by the session's limit, and an empty list
 * may mean an error as well as no match.
 */
ServiceAnswer AskPublicCategoryService(
    Session& session, const QString& keyword, componentlibrary::CategoryTree::Categories& categories);

} // namespace nuq
