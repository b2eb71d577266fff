#include "TarnNuqService/Providers/UrlImageProviderFixture.h"
#include "support/NamedCase.h"

#include <QImageReader>

using testsupport::ImageBytes;
using testsupport::LogRecord;
using testsupport::PngBomb;
using testsupport::PromisingPng;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;

namespace {

class UrlImageProviderCacheTest : public testsupport::UrlImageProviderFixture
{
protected:
    /// Asks for an image whose file is there; the answer must have come when the call returns.
    std::shared_ptr<QImage> ProvideCached(const std::wstring& address)
    {
        const std::size_t before = answers.size();
        provider->Provide(address);
        EXPECT_EQ(answers.size(), before + 1);
        return answers.empty() ? nullptr : answers.back().image;
    }

    const std::wstring url = Url(QStringLiteral("/pump.png"));
};

struct BrokenFile : testsupport::NamedCase
{
    QByteArray content;
};

class BrokenCacheFileTest : public UrlImageProviderCacheTest, public ::testing::WithParamInterface<BrokenFile>
{
};

QByteArray CutInHalf(const QByteArray& bytes)
{
    return bytes.left(bytes.size() / 2);
}

QByteArray Damaged(QByteArray bytes)
{
    bytes[bytes.size() / 2] = static_cast<char>(~bytes.at(bytes.size() / 2));
    return bytes;
}

} // namespace

TEST_F(UrlImageProviderCacheTest, AFileThatIsThereIsProvidedInsideTheCallWithoutARequest)
{
    Write(FileOf(url), ImageBytes(SampleImage()));
    provider->Provide(url);
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers[0].url, url);
    ASSERT_NE(answers[0].image, nullptr);
    EXPECT_EQ(answers[0].image->convertToFormat(QImage::Format_RGB32), SampleImage());
    RunPastEverything();
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_EQ(server.Requests().size(), 1U) << "only the one that ran past everything";
}

TEST_F(UrlImageProviderCacheTest, TheRecordNamesTheFileAndNotTheUrl)
{
    Write(FileOf(url), ImageBytes(SampleImage()));
    ProvideCached(url);
    EXPECT_EQ(host.logger.Records(),
        (std::vector<LogRecord>{{LogRecord::Operation::Info, {QStringLiteral("get image from ") + FileOf(url)}}}));
}

TEST_F(UrlImageProviderCacheTest, TheHostIsAskedForTheFileOfTheUrlAsItIsWithTheExtensionPng)
{
    const std::wstring odd = L"http://h/%20 水泵.JPG?size=1#x%1";
    Write(FileOf(odd), ImageBytes(SampleImage()));
    host.paths.questions.clear();
    ProvideCached(odd);
    EXPECT_EQ(host.paths.questions, (std::vector<std::pair<std::wstring, std::wstring>>{{odd, L".png"}}));
    EXPECT_EQ(answers[0].url, odd);
}

TEST_F(UrlImageProviderCacheTest, AFileIsReadAnewEachTime)
{
    Write(FileOf(url), ImageBytes(SampleImage()));
    const std::shared_ptr<QImage> first = ProvideCached(url);
    Write(FileOf(url), ImageBytes(SampleImage(8, 8, 1)));
    const std::shared_ptr<QImage> second = ProvideCached(url);
    EXPECT_NE(first, second);
    EXPECT_EQ(first->size(), QSize(24, 16));
    EXPECT_EQ(second->size(), QSize(8, 8));
}

TEST_F(UrlImageProviderCacheTest, AFileIsNeitherChangedNorRemoved)
{
    Write(FileOf(url), "no image");
    ProvideCached(url);
    ProvideCached(url);
    EXPECT_EQ(Read(FileOf(url)), "no image");
}

TEST_F(UrlImageProviderCacheTest, AFileThatWasRemovedIsRequestedAgain)
{
    Write(FileOf(url), ImageBytes(SampleImage()));
    ProvideCached(url);
    ASSERT_TRUE(QFile::remove(FileOf(url)));
    const std::shared_ptr<QImage> image =
        Provide(QStringLiteral("/pump.png"), ScriptedResponse::Status(200, ImageBytes(SampleImage(5, 5))));
    EXPECT_EQ(image->size(), QSize(5, 5));
}

TEST_F(UrlImageProviderCacheTest, TheFormatIsThatOfTheContentWhateverTheExtensionSays)
{
    for (const char* format : {"PNG", "BMP", "PPM", "XPM", "JPG"}) {
        if (QImageReader::supportedImageFormats().contains(QByteArray(format).toLower())) {
            Write(FileOf(url), ImageBytes(SampleImage(), format));
            const std::shared_ptr<QImage> image = ProvideCached(url);
            ASSERT_NE(image, nullptr) << format;
            EXPECT_EQ(image->size(), QSize(24, 16)) << format;
        }
    }
    EXPECT_GE(answers.size(), 4U);
}

TEST_F(UrlImageProviderCacheTest, AFolderInPlaceOfTheFileIsAnImageThatIsNull)
{
    ASSERT_TRUE(QDir().mkpath(FileOf(url)));
    const std::shared_ptr<QImage> image = ProvideCached(url);
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(image->isNull());
}

TEST_P(BrokenCacheFileTest, IsAnImageThatIsNullInsideTheCall)
{
    Write(FileOf(url), GetParam().content);
    const std::shared_ptr<QImage> image = ProvideCached(url);
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(image->isNull());
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
    EXPECT_EQ(Read(FileOf(url)), GetParam().content);
}

INSTANTIATE_TEST_SUITE_P(Contents, BrokenCacheFileTest,
    ::testing::Values(BrokenFile{{"Nothing"}, ""}, BrokenFile{{"APage"}, "<!DOCTYPE html><html>sign in</html>"},
        BrokenFile{{"CutInTheHeader"}, ImageBytes(SampleImage()).left(20)},
        BrokenFile{{"CutInTheMiddle"}, CutInHalf(ImageBytes(SampleImage(64, 64)))},
        BrokenFile{{"OneByteChanged"}, Damaged(ImageBytes(SampleImage(64, 64)))},
        BrokenFile{{"TenGigabytesPromised"}, PromisingPng(50000, 50000)},
        BrokenFile{{"TheLargestPromise"}, PromisingPng(0x7fffffff, 0x7fffffff)},
        BrokenFile{{"NoPixels"}, PromisingPng(0, 0)}),
    testsupport::RowName());

TEST_F(UrlImageProviderCacheTest, AHundredTimesMorePixelsThanBytesAreStillDecoded)
{
    const QByteArray bomb = PngBomb(3000, 2000);
    ASSERT_LT(bomb.size() * 100, 3000 * 2000);
    Write(FileOf(url), bomb);
    EXPECT_EQ(ProvideCached(url)->size(), QSize(3000, 2000));
}

TEST_F(UrlImageProviderCacheTest, AnImageThatIsThereNeedsNoNetworkManager)
{
    tarnnuq::UrlImageProviderAccess::SetManager(*provider, nullptr);
    Write(FileOf(url), ImageBytes(SampleImage()));
    EXPECT_EQ(ProvideCached(url)->size(), QSize(24, 16));
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}
