#pragma once

#include "Errors/ErrorTexts.h"
#include "Requests/Catalogue.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/WaitFor.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <memory>

namespace componentlibrary {

/// A catalogue over a real loopback server, with short delays and no chance in them.
class CatalogueFixture : public ::testing::Test
{
protected:
    CatalogueFixture()
    {
        host.userService.token = L"the-token";
        settings.retry.firstDelay = 20;
        settings.dice = [] { return 0.5; };
    }

    /// Made when it is first asked for, so that a test can change the settings before.
    Catalogue& TheCatalogue()
    {
        if (catalogue == nullptr)
            catalogue = std::make_unique<Catalogue>(settings, server.BaseUrl());
        return *catalogue;
    }

    /// Starts the request and waits for its end; a second end would show in `ends`.
    template <class RequestType>
    bool Run(RequestType& request)
    {
        QObject::connect(&request, &RequestBase::Finished, &request, [this] { ++ends; });
        request.Start();
        EXPECT_FALSE(request.HasEnded()) << "ended inside Start()";
        const bool hasEnded = testsupport::WaitFor([&request] { return request.HasEnded(); });
        QCoreApplication::processEvents();
        return hasEnded;
    }

    testsupport::RecordingHost host;
    testsupport::LoopbackServer server;
    ChannelSettings settings;
    std::unique_ptr<Catalogue> catalogue;
    int ends = 0;
};

inline QByteArray Envelope(const QByteArray& data)
{
    return R"({"code":"success","message":"","data":)" + data + "}";
}

} // namespace componentlibrary
