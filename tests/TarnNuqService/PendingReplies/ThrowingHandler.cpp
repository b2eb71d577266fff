#include "TarnNuqService/PendingReplies/ThrowingHandler.h"

namespace testsupport {

ThrowingResult ThrowingHandler::Handle(QNetworkReply*, std::wstring& error)
{
    error = L"no";
    toThrow();
    error.clear();
    return {7};
}

ThrowingHandler& RegisteredThrowingHandler()
{
    static ThrowingHandler handler;
    return handler;
}

} // namespace testsupport

namespace tarnnuq {

template <>
IResponseHandler<testsupport::ThrowingResult>* ResponseHandlerRegistry::Get<testsupport::ThrowingResult>()
{
    return &testsupport::RegisteredThrowingHandler();
}

} // namespace tarnnuq
