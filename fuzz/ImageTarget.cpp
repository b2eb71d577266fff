// The bytes of an image, as an answer that is cached and decoded and as the cache file that later calls read.
#include "Providers/UrlImageProvider.h"
#include "hostsdk/HostServices.h"
#include "support/FuzzHost.h"
#include "support/MemoryReply.h"
#include "tarnnuq/PathUtils.h"

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace tarnnuq {

/// Reaches the reply handler.
class UrlImageProviderAccess
{
public:
    static void Handle(UrlImageProvider& provider, QNetworkReply& reply, const QString& filePath, std::wstring url)
    {
        provider.HandleReply(reply, filePath, std::move(url));
    }
};

} // namespace tarnnuq

namespace {

constexpr qint64 MostPixels = qint64{1} << 20;

/// One cache file for every URL, and a provider that answers from it.
class ImageHost : public tarnnuq::PathUtils
{
public:
    ImageHost()
    {
        fuzz::FuzzHost::Get();
        hostsdk::HostServices services = hostsdk::Installed();
        services.paths = this;
        hostsdk::Install(services);
        QObject::connect(&m_provider, &tarnnuq::UrlImageProvider::OnProvided,
            [this](const std::wstring&, const std::shared_ptr<QImage>& image) { m_images.push_back(image); });
    }

    /// @return the image as it was decoded from the answer
    std::shared_ptr<QImage> Answer(const QByteArray& body)
    {
        // The provider gives a reply to the event loop to delete: there is none here.
        auto reply = std::make_unique<bench::MemoryReply>(body);
        tarnnuq::UrlImageProviderAccess::Handle(m_provider, *reply, m_file, L"url");
        return TheOneImage();
    }

    /// @return the image as it was decoded from the file
    std::shared_ptr<QImage> Provide()
    {
        m_provider.Provide(L"url");
        return TheOneImage();
    }

    std::wstring DoGetThumbnailDownloadFilePath(std::wstring, std::wstring) const override
    {
        return m_file.toStdWString();
    }

private:
    std::shared_ptr<QImage> TheOneImage()
    {
        if (m_images.size() != 1 || !m_images.front()) {
            std::abort();
        }
        std::shared_ptr<QImage> image = m_images.front();
        m_images.clear();
        return image;
    }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("image.png"));
    tarnnuq::UrlImageProvider m_provider{nullptr};
    std::vector<std::shared_ptr<QImage>> m_images;
};

/// Whether an image promises so many pixels that only the allocator would be tested.
bool IsHuge(const QByteArray& body)
{
    QBuffer buffer;
    buffer.setData(body);
    const QSize size = QImageReader(&buffer).size();
    return size.isValid() && qint64{size.width()} * size.height() > MostPixels;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static ImageHost host;
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (IsHuge(body)) {
        return 0;
    }
    const std::shared_ptr<QImage> answered = host.Answer(body);
    if (*host.Provide() != *answered) {
        std::abort();
    }
    return 0;
}
