#pragma once

#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "support/AllocationCounter.h"
#include "support/AllocationFailure.h"

namespace testsupport {

/// Handlers that run out of memory at one record.
class MemoryFixture : public HandlerFixture
{
protected:
    /// What a handler makes of a payload when its nth record of this type cannot be made.
    template <typename Record, typename Handler>
    auto MapWithoutMemory(Handler& handler, const QByteArray& data, std::size_t nth)
    {
        std::wstring error = L"from an earlier reply";
        const FinishedReply reply = FetchBody(SuccessBody(data));
        const AllocationFailure outOfMemory(SizeOfMakeShared<Record>(), nth);
        auto result = handler.Handle(reply.get(), error);
        EXPECT_TRUE(outOfMemory.Happened());
        EXPECT_EQ(error, L"");
        return result;
    }

    template <typename Handler, typename Record>
    auto MapWithoutMemory(const QByteArray& data, std::size_t nth)
    {
        Handler handler;
        return MapWithoutMemory<Record>(handler, data, nth);
    }

    /// Expects one debug warning, raised on behalf of a handler.
    void ExpectWarning(
        const std::string& handler, const std::wstring& message, const std::wstring& date = L"2022-01-25") const;
};

} // namespace testsupport
