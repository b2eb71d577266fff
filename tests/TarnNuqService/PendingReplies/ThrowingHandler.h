#pragma once

#include "ResponseHandlers/ResponseHandlerRegistry.h"

#include <functional>

namespace testsupport {

/// A result whose handler throws when the test wants it to.
struct ThrowingResult
{
    int value = 0;
};

/// Gives the value 7 without an error, or throws.
class ThrowingHandler final : public tarnnuq::IResponseHandler<ThrowingResult>
{
public:
    ThrowingResult Handle(QNetworkReply* reply, std::wstring& error) override;

    /// Throws, or does nothing.
    std::function<void()> toThrow = [] {};

protected:
    void HandleBody(const QJsonObject&) override {}
};

/// The one that the registry knows.
ThrowingHandler& RegisteredThrowingHandler();

} // namespace testsupport

namespace tarnnuq {

template <>
IResponseHandler<testsupport::ThrowingResult>* ResponseHandlerRegistry::Get<testsupport::ThrowingResult>();

} // namespace tarnnuq
