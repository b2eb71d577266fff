#include "support/FinishedReply.h"

#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace testsupport {

FinishedReply RunToEnd(QNetworkReply* reply)
{
    if (!WaitFor([reply] { return reply->isFinished(); })) {
        ADD_FAILURE() << "no end of " << reply->url().toString().toStdString();
        reply->abort();
    }
    // Its manager would delete it a second time.
    reply->setParent(nullptr);
    return FinishedReply(reply);
}

} // namespace testsupport
