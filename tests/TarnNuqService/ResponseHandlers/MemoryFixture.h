#pragma once

#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"
#include "support/AllocationCounter.h"
#include "support/AllocationFailure.h"

#include <new>
#include <optional>
#include <utility>

namespace testsupport {

/// Handlers that run out of memory at one record.
class MemoryFixture : public HandlerFixture
{
protected:
    template <typename Handler>
    using ResultOf = decltype(Handler().Handle(nullptr, std::declval<std::wstring&>()));

    /// What a fresh handler makes of a payload when its nth record of this type cannot be made.
    ///
    /// The block is found by its size. Other blocks may have the same: when one of those fails, the handler throws
    /// or raises no warning, and the next block is tried.
    template <typename Handler, typename Record>
    ResultOf<Handler> MapWithoutMemory(const QByteArray& data, std::size_t nth)
    {
        std::size_t records = 0;
        for (std::size_t block = 1; block < 100; ++block) {
            host.debugMessages.Clear();
            const auto result = MapWithoutBlock<Handler>(data, SizeOfMakeShared<Record>(), block);
            if (result && !host.debugMessages.Warnings().empty() && ++records == nth) {
                return *result;
            }
        }
        ADD_FAILURE() << "there is no such record";
        return ResultOf<Handler>();
    }

    /// Expects one debug warning, raised on behalf of a handler.
    void ExpectWarning(
        const std::string& handler, const std::wstring& message, const std::wstring& date = L"2022-01-25") const;

private:
    /// What a fresh handler makes of a payload when the nth block of this size cannot be had; nothing when it throws.
    template <typename Handler>
    std::optional<ResultOf<Handler>> MapWithoutBlock(const QByteArray& data, std::size_t size, std::size_t nth)
    {
        Handler handler;
        std::wstring error = L"from an earlier reply";
        const FinishedReply reply = FetchBody(SuccessBody(data));
        try {
            const AllocationFailure outOfMemory(size, nth);
            auto result = handler.Handle(reply.get(), error);
            EXPECT_TRUE(outOfMemory.Happened()) << "block " << nth;
            EXPECT_EQ(error, L"");
            return result;
        } catch (const std::bad_alloc&) {
            return std::nullopt;
        }
    }
};

} // namespace testsupport
