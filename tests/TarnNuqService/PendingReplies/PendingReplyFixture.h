#pragma once

#include "ResponseHandlers/CustomReplyBase.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/WaitFor.h"

#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <memory>

namespace testsupport {

/// Real replies of a real server, for pending replies to wait for.
class PendingReplyFixture : public ::testing::Test
{
protected:
    /// Sends a request that gets this answer.
    QNetworkReply* Get(const ScriptedResponse& response)
    {
        const QString target = QStringLiteral("/%1").arg(++m_requests);
        server.On(target.toLatin1(), response);
        return manager->get(QNetworkRequest(server.Url(target)));
    }

    /// Sends a request whose answer has begun when this returns, and never ends.
    QNetworkReply* GetEndless()
    {
        QNetworkReply* reply = Get(ScriptedResponse::Json("{}").CutAt(
            ScriptedResponse::CutPoint::AfterHeaders, ScriptedResponse::CutAction::Stall));
        EXPECT_TRUE(WaitFor([reply] { return reply->rawHeaderPairs().size() > 0; }));
        return reply;
    }

    /// The address of the last request.
    QString LastUrl() const { return server.Url(QStringLiteral("/%1").arg(m_requests)).toString(); }

    /// Attaches a running network reply, and runs until the pending reply says that it has been handled and the
    /// network reply is gone.
    /// @return how often the pending reply said so
    static int Run(tarnnuq::CustomReplyBase& pending, QNetworkReply* reply)
    {
        const QSignalSpy finished(&pending, &tarnnuq::CustomReplyBase::Finished);
        const QPointer<QNetworkReply> guard(reply);
        pending.SetReply(reply);
        EXPECT_TRUE(WaitFor([&finished, &guard] { return finished.count() > 0 && !guard; }));
        return finished.count();
    }

    /// Runs until something that was sent after everything else has come back: what has not happened by then never
    /// will.
    void RunPastEverything()
    {
        const std::unique_ptr<QNetworkReply> last(Get(ScriptedResponse::Json("{}")));
        EXPECT_TRUE(WaitFor([&last] { return last->isFinished(); }));
    }

    RecordingHost host;
    LoopbackServer server;
    std::unique_ptr<QNetworkAccessManager> manager = std::make_unique<QNetworkAccessManager>();

private:
    int m_requests = 0;
};

} // namespace testsupport
