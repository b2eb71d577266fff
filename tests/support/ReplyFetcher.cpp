#include "support/ReplyFetcher.h"

namespace testsupport {

FinishedReply ReplyFetcher::Get(const QUrl& url)
{
    return Get(QNetworkRequest(url));
}

FinishedReply ReplyFetcher::Get(const QNetworkRequest& request)
{
    return RunToEnd(m_manager.get(request));
}

} // namespace testsupport
