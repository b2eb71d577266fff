#pragma once

#include "support/FinishedReply.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QUrl>

namespace testsupport {

/// Fetches real replies for tests of what comes after the network.
class ReplyFetcher
{
public:
    /// Sends a GET and waits for its end. The reply may outlive the fetcher.
    FinishedReply Get(const QUrl& url);
    FinishedReply Get(const QNetworkRequest& request);

    /// The manager behind it, for settings.
    QNetworkAccessManager& Manager() { return m_manager; }

private:
    QNetworkAccessManager m_manager;
};

} // namespace testsupport
