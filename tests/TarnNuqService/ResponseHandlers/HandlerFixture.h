#pragma once

#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/ReplyFetcher.h"

#include <gtest/gtest.h>
#include <string>

namespace testsupport {

/// The body of a successful reply with this payload, given as JSON text.
QByteArray SuccessBody(const QByteArray& data);

/**
 * A host whose environment is configured, and a server that answers what a test lets a handler read.
 *
 * The environment has been read when a test starts, so that the log holds what the test does and nothing else.
 */
class HandlerFixture : public ::testing::Test
{
protected:
    /// Where thumbnails lie.
    static constexpr const char* StaticEndPoint = "http://static.example/res";

    HandlerFixture();

    /// Fetches a real reply from an address of its own, so that a request that Qt sends again gets the same answer.
    FinishedReply Fetch(const ScriptedResponse& response);
    /// Fetches a real reply from this path (and query).
    FinishedReply Fetch(const ScriptedResponse& response, const QString& target);
    /// Fetches a reply that came well through the network, with this body.
    FinishedReply FetchBody(const QByteArray& body);

    /// What a handler makes of a payload, given as JSON text, in a reply that succeeded.
    template <typename Handler>
    auto Map(Handler& handler, const QByteArray& data)
    {
        std::wstring error = L"from an earlier reply";
        const FinishedReply reply = FetchBody(SuccessBody(data));
        auto result = handler.Handle(reply.get(), error);
        EXPECT_EQ(error, L"");
        return result;
    }

    /// What a fresh handler makes of a payload.
    template <typename Handler>
    auto Map(const QByteArray& data)
    {
        Handler handler;
        return Map(handler, data);
    }

    EnvironmentFolder folder;
    RecordingHost host;
    LoopbackServer server;
    ReplyFetcher fetcher;

private:
    int m_fetched = 0;
};

} // namespace testsupport
