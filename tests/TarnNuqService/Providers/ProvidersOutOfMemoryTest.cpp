#include "ResponseHandlers/CustomFileReply.h"
#include "TarnNuqService/Providers/NewUrlImageProviderAccess.h"
#include "TarnNuqService/Providers/UrlImageProviderFixture.h"
#include "support/AllocationCounter.h"
#include "support/AllocationFailure.h"
#include "support/ReplyFetcher.h"

#include <algorithm>

using tarnnuq::UrlImageProviderAccess;
using testsupport::AllocationFailure;
using testsupport::ImageBytes;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;
using testsupport::SizeOfMakeShared;

namespace {

class ProvidersOutOfMemoryTest : public testsupport::UrlImageProviderFixture
{
protected:
    /// A finished reply, to be handled by hand.
    testsupport::FinishedReply Fetch(const ScriptedResponse& response)
    {
        server.Enqueue(response);
        return testsupport::ReplyFetcher().Get(server.Url());
    }

    void Handle(QNetworkReply& reply, std::wstring given)
    {
        UrlImageProviderAccess::Handle(*provider, reply, file, std::move(given));
    }

    /// Counted from 1: which allocation of handling a reply is the one for the image.
    std::size_t AllocationsUpToTheImage()
    {
        const std::size_t imageSize = SizeOfMakeShared<QImage>();
        const testsupport::FinishedReply reply = Fetch(ScriptedResponse::Status(200, png));
        std::wstring given = url;
        const testsupport::AllocationCounter counter;
        Handle(*reply, std::move(given));
        const std::vector<std::size_t> sizes = counter.Sizes();
        const auto image = std::find(sizes.begin(), sizes.end(), imageSize);
        EXPECT_NE(image, sizes.end());
        return static_cast<std::size_t>(image - sizes.begin()) + 1;
    }

    const std::wstring url = Url(QStringLiteral("/pump.png"));
    const QString file = FileOf(url);
    const QByteArray png = ImageBytes(SampleImage());
};

} // namespace

TEST_F(ProvidersOutOfMemoryTest, ACachedImageThatCannotBeMadeIsWarnedAboutAndNotAnswered)
{
    Write(FileOf(url), png);
    {
        const AllocationFailure outOfMemory(SizeOfMakeShared<QImage>());
        provider->Provide(url);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    ExpectWarning("Providers/UrlImageProvider.cpp", "tarnnuq::UrlImageProvider::Provide", L"spImage 为空");
    EXPECT_TRUE(answers.empty());
    provider->Provide(url);
    EXPECT_EQ(answers.size(), 1U);
}

TEST_F(ProvidersOutOfMemoryTest, ADownloadedImageThatCannotBeMadeIsCachedAndNeitherAnsweredNorWarnedAbout)
{
    const testsupport::FinishedReply reply = Fetch(ScriptedResponse::Status(200, png));
    {
        const AllocationFailure outOfMemory(SizeOfMakeShared<QImage>());
        Handle(*reply, url);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
    EXPECT_EQ(Read(FileOf(url)), png);
}

TEST_F(ProvidersOutOfMemoryTest, NoAnswerCarriesAnExceptionThroughTheSignalOfItsReply)
{
    const std::size_t last = AllocationsUpToTheImage();
    ASSERT_GT(last, 1U);
    // Further allocations are those of Qt's decoders, whose locks no exception gets past.
    for (std::size_t nth = 1; nth < last; ++nth) {
        const testsupport::FinishedReply reply = Fetch(ScriptedResponse::Status(200, png));
        answers.clear();
        answers.reserve(1);
        std::wstring given = url;
        const AllocationFailure outOfMemory = AllocationFailure::OfAnySize(nth);
        EXPECT_NO_THROW(Handle(*reply, std::move(given))) << "allocation " << nth;
        EXPECT_TRUE(outOfMemory.Happened()) << "allocation " << nth;
        EXPECT_EQ(answers.size(), 1U) << "allocation " << nth;
    }
}

TEST_F(ProvidersOutOfMemoryTest, AFileReplyThatCannotBeMadeIsWarnedAboutAndNothingIsSent)
{
    tarnnuq::NewUrlImageProviderAccess access;
    host.paths.questions.clear();
    {
        const AllocationFailure outOfMemory(sizeof(tarnnuq::CustomFileReply));
        EXPECT_EQ(access.Provider().ProvideImageFile(url), nullptr);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    ExpectWarning(
        "Providers/NewUrlImageProvider.cpp", "tarnnuq::NewUrlImageProvider::ProvideImageFile", L"pCustomReply 为空");
    EXPECT_TRUE(host.logger.Records().empty()) << "the reply is made before the file is named";
    EXPECT_TRUE(host.paths.questions.empty());
    RunPastEverything();
    EXPECT_EQ(server.Requests().size(), 1U);
}
