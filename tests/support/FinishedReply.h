#pragma once

#include <QNetworkReply>
#include <memory>

namespace testsupport {

/// Network replies must not be deleted at once: they may be in the middle of a signal.
struct DeleteLater
{
    void operator()(QObject* object) const { object->deleteLater(); }
};

/// A reply that has ended, owned by the test instead of its manager.
using FinishedReply = std::unique_ptr<QNetworkReply, DeleteLater>;

/**
 * Runs the event loop until the reply has ended.
 *
 * @param reply a running or ended reply, taken over.
 * @return the reply; after WaitLimit the test fails and the reply is aborted, so that it has ended in any case.
 */
FinishedReply RunToEnd(QNetworkReply* reply);

} // namespace testsupport
