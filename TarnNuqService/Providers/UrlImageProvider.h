#pragma once

#include "Providers/ImageProvider.h"
#include "TarnNuqServiceExport.h"

#include <QImage>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace tarnnuq {

/// Turns the URL of a thumbnail into an image, from the host's thumbnail cache or from the network.
///
/// Whoever makes a provider owns it; deleting it inside a receiver of OnProvided() is harmless. What is still on its
/// way then never reports. Each Provide() is a lookup of its own: two for one URL that is not in the cache send two
/// requests and answer twice, and the later one to finish overwrites the cache file of the other. Lives on the thread
/// that made it, which runs the event loop for the downloads.
class TARNNUQSERVICE_EXPORT UrlImageProvider : public ImageProvider<std::wstring>
{
    Q_OBJECT

public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit UrlImageProvider(QObject* parent);
    ~UrlImageProvider() override;

    /// Looks an image up; the answer is one OnProvided().
    ///
    /// A URL whose cache file exists is answered from the file, whatever it holds, inside this call. Any other URL is
    /// requested, without an Authorization header and without a time-out; a good answer is written to the cache file
    /// whatever it holds, and is answered later even when the file cannot be written. Cache files never expire. Where
    /// no request can be sent at all, a debug warning is raised and no answer follows.
    /// @param url the image's address; not normalised for the cache
    void Provide(std::wstring url) override;

Q_SIGNALS:
    /// One Provide() has ended.
    /// @param url the very text that was given to Provide()
    /// @param spImage null when the download failed; an image that is null itself when the bytes are no image that
    /// Qt can read
    void OnProvided(std::wstring url, std::shared_ptr<QImage> spImage);

private:
    friend class UrlImageProviderAccess; // the seam for tests

    void ConfigureAuthorization(QNetworkRequest& request) const;
    void ProvideFromFile(std::wstring url, const QString& filePath);
    void RequestImage(std::wstring url, const QString& filePath);
    void HandleReply(QNetworkReply& reply, const QString& filePath, std::wstring url);

    std::shared_ptr<QNetworkAccessManager> m_spNetworkAccessManager;
};

} // namespace tarnnuq
