#pragma once

#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "support/LoopbackServer.h"
#include "support/WaitFor.h"

#include <QSignalSpy>
#include <memory>

namespace testsupport {

/// A property service whose endpoint is a server on this machine.
class CloudFixture : public PropertyServiceFixture
{
protected:
    CloudFixture()
    {
        host.appService.appDir = folder.AppDir();
        folder.WriteEndPoints(server.BaseUrl() + QStringLiteral("/api"), QStringLiteral("http://static/s"));
        Service();
        host.logger.Clear();
        host.debugMessages.Clear();
    }

    /// Takes a pending reply over and runs until it has been handled.
    /// @return the pending reply; null when there was none
    template <typename Reply>
    std::unique_ptr<Reply> Finish(Reply* pending)
    {
        std::unique_ptr<Reply> owned(pending);
        EXPECT_NE(pending, nullptr);
        if (owned) {
            const QSignalSpy finished(pending, &tarnnuq::CustomReplyBase::Finished);
            EXPECT_TRUE(WaitFor([&finished] { return finished.count() > 0; }));
            EXPECT_EQ(finished.count(), 1);
        }
        return owned;
    }

    /// The address of what stands behind the API's, as texts show it.
    QString ApiUrl(const QString& rest) const { return server.BaseUrl() + QStringLiteral("/api") + rest; }

    static LogRecord InfoRecord(const QString& text) { return {LogRecord::Operation::Info, {text}}; }
    static LogRecord HeaderRecord(const QString& value)
    {
        return {LogRecord::Operation::Debug, {QStringLiteral("Authorization header: "), value}};
    }

    EnvironmentFolder folder;
    LoopbackServer server;
};

} // namespace testsupport
