#pragma once

#include "support/LogRecord.h"

#include <ostream>
#include <string>
#include <vector>

class QNetworkReply;

namespace testsupport {

/// One of the two branches of handlers, which differ in wording alone.
struct HandlerBranch
{
    const char* name;
    /// Lets a fresh handler of the branch handle a reply; gives its error text.
    std::wstring (*handle)(QNetworkReply* reply);
    /// What the branch says about a transport or HTTP error.
    QString (*requestError)(int status, const QString& message);
    /// The log record about such an error.
    LogRecord (*errorRecord)(const QString& url, const QString& requestError);
    /// The log record about a body that arrived.
    LogRecord (*successRecord)(const QString& url, const QString& body);
};

/// Makes GoogleTest show the branch by its name.
inline void PrintTo(const HandlerBranch& branch, std::ostream* stream)
{
    *stream << branch.name;
}

/// Both branches: handlers with the interface's own handling, and those with that of ResponseHandlerBase.
const std::vector<HandlerBranch>& HandlerBranches();

} // namespace testsupport
