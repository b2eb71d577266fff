// Each allocation on the way of a reply fails once: whatever becomes of the reply, the pending reply says how it ended
// and no exception crosses the network reply's signal.
#include "Records/ICategoryMapping.h"
#include "ResponseHandlers/CustomFileReply.h"
#include "ResponseHandlers/CustomReply.h"
#include "TarnNuqService/PendingReplies/PendingReplyFixture.h"
#include "TarnNuqService/PendingReplies/ThrowingHandler.h"
#include "support/AllocationFailure.h"

#include <QFile>
#include <QTemporaryDir>
#include <optional>

using tarnnuq::CustomFileReply;
using tarnnuq::CustomReply;
using testsupport::AllocationFailure;
using testsupport::ScriptedResponse;
using testsupport::WaitFor;

namespace {

using Mappings = tarnnuq::RecordList<tarnnuq::ICategoryMapping>;

constexpr const char* TwoMappings = R"({"code":"success","data":[)"
                                    R"({"componentEditorCategoryId":"editor-1","categoryCode":"category-1"},)"
                                    R"({"componentEditorCategoryId":"editor-2","categoryCode":"category-2"}]})";

class OutOfMemoryTest : public testsupport::PendingReplyFixture
{
protected:
    /// Has a finished reply handled while the nth allocation fails.
    /// @return whether there was an nth allocation
    bool HandleWithFailure(tarnnuq::CustomReplyBase& pending, const ScriptedResponse& response, std::size_t nth)
    {
        QNetworkReply* reply = Get(response);
        EXPECT_TRUE(WaitFor([reply] { return reply->isFinished(); }));
        const QSignalSpy finished(&pending, &tarnnuq::CustomReplyBase::Finished);
        pending.SetReply(reply);
        host.logger.Clear();
        const AllocationFailure failure = AllocationFailure::OfAnySize(nth);
        EXPECT_NO_THROW(Q_EMIT reply->finished()) << "allocation " << nth;
        EXPECT_EQ(finished.count(), 1) << "allocation " << nth;
        return failure.Happened();
    }

    QString Target() const { return folder.filePath(QStringLiteral("缩略 图.png")); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(OutOfMemoryTest, ATypedReplyIsWholeOrAnError)
{
    tarnnuq::ResponseHandlerRegistry::Get<Mappings>();
    std::size_t failures = 0;
    for (std::size_t nth = 1;; ++nth) {
        host.debugMessages.Clear();
        CustomReply<Mappings> pending;
        if (!HandleWithFailure(pending, ScriptedResponse::Json(TwoMappings), nth)) {
            EXPECT_EQ(pending.Error(), L"");
            break;
        }
        failures += pending.Error() == L"Unknown Error." ? 1 : 0;
        // A record that could not be made is left out with a warning.
        const std::size_t expected = pending.Error().empty() ? 2 - host.debugMessages.Warnings().size() : 0;
        EXPECT_EQ(pending.Result().size(), expected) << "allocation " << nth;
    }
    EXPECT_GT(failures, 0U);
}

TEST_F(OutOfMemoryTest, AFailedTypedReplyIsAnErrorAllTheSame)
{
    tarnnuq::ResponseHandlerRegistry::Get<Mappings>();
    for (std::size_t nth = 1;; ++nth) {
        CustomReply<Mappings> pending;
        const bool failed = HandleWithFailure(pending, ScriptedResponse::Json("{}", 404), nth);
        EXPECT_NE(pending.Error(), L"") << "allocation " << nth;
        if (!failed) {
            break;
        }
    }
}

TEST_F(OutOfMemoryTest, AFileReplyIsWholeOrAnError)
{
    std::size_t failures = 0;
    for (std::size_t nth = 1;; ++nth) {
        QFile::remove(Target());
        CustomFileReply pending;
        pending.SetSaveFilePath(Target().toStdWString());
        const bool failed = HandleWithFailure(pending, ScriptedResponse::Status(200, "picture"), nth);
        if (pending.Error().empty()) {
            QFile file(Target());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_EQ(file.readAll(), "picture");
        } else {
            EXPECT_EQ(pending.Error(), L"error on saving file.") << "allocation " << nth;
            ++failures;
        }
        if (!failed) {
            EXPECT_EQ(pending.Error(), L"");
            break;
        }
    }
    EXPECT_GT(failures, 0U);
}

TEST_F(OutOfMemoryTest, AFailedFileReplyIsAnErrorAllTheSame)
{
    for (std::size_t nth = 1;; ++nth) {
        CustomFileReply pending;
        pending.SetSaveFilePath(Target().toStdWString());
        const bool failed = HandleWithFailure(pending, ScriptedResponse::Json("{}", 404), nth);
        EXPECT_NE(pending.Error(), L"") << "allocation " << nth;
        EXPECT_FALSE(QFile::exists(Target()));
        if (!failed) {
            break;
        }
    }
}

TEST_F(OutOfMemoryTest, TheErrorOfAnExceptionNeedsNoMemory)
{
    std::optional<AllocationFailure> failure;
    testsupport::RegisteredThrowingHandler().toThrow = [&failure] {
        failure.emplace(sizeof(L"Unknown Error."));
        throw std::bad_alloc();
    };
    CustomReply<testsupport::ThrowingResult> pending;
    HandleWithFailure(pending, ScriptedResponse::Json("{}"), 1000);
    EXPECT_EQ(pending.Error(), L"Unknown Error.");
}
