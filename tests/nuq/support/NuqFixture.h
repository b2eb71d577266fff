#pragma once

#include "support/LoopbackServer.h"
#include "support/NuqRunner.h"

#include <gtest/gtest.h>

namespace nuqtest {

inline QByteArray Envelope(const QByteArray& data)
{
    return R"({"code":"success","message":"","data":)" + data + "}";
}

/// The program against a loopback server with scripted answers.
class NuqFixture : public ::testing::Test
{
protected:
    NuqFixture() { runner.PointAt(server.BaseUrl()); }

    void On(const QByteArray& path, const testsupport::ScriptedResponse& response)
    {
        server.On("/api" + path, response);
    }

    void OnData(const QByteArray& path, const QByteArray& data)
    {
        On(path, testsupport::ScriptedResponse::Json(Envelope(data)));
    }

    /// Runs the program; the server's port reads PORT, the home folder HOME, the application folder APP.
    NuqResult Run(const QStringList& arguments) const
    {
        NuqResult result = runner.Run(arguments);
        result.out = Steady(result.out);
        result.err = Steady(result.err);
        return result;
    }

    std::string Steady(std::string text) const
    {
        text = Replaced(std::move(text), "127.0.0.1:" + std::to_string(server.Port()), "127.0.0.1:PORT");
        text = Replaced(std::move(text), runner.HomeFolder().toStdString(), "HOME");
        return Replaced(std::move(text), runner.ApplicationFolder().toStdString(), "APP");
    }

    testsupport::LoopbackServer server;
    NuqRunner runner;
};

} // namespace nuqtest
