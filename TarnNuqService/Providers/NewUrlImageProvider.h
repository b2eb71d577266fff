#pragma once

#include "TarnNuqServiceExport.h"

#include <memory>
#include <string>

class QNetworkAccessManager;
class QNetworkRequest;

namespace tarnnuq {

class CustomFileReply;

/// Downloads thumbnails to their files in the host's thumbnail cache, without decoding them.
///
/// One instance a process, used on the thread that made it.
class TARNNUQSERVICE_EXPORT NewUrlImageProvider
{
public:
    /// @return the single instance, made on the first call and never destroyed
    static NewUrlImageProvider* Get();

    /// Starts to download an image, also when its file is there already: the file is then overwritten.
    ///
    /// The request carries no Authorization header and has no time-out. Two calls for one URL make two downloads to
    /// one file.
    /// @param url the image's address; not normalised for the cache
    /// @return the pending reply, which the caller owns and which knows the file from now on; null, with a debug
    /// warning, when no request could be sent
    CustomFileReply* ProvideImageFile(std::wstring url);

private:
    friend class NewUrlImageProviderAccess; // the seam for tests

    NewUrlImageProvider();
    NewUrlImageProvider(const NewUrlImageProvider&) = delete;
    NewUrlImageProvider& operator=(const NewUrlImageProvider&) = delete;
    virtual ~NewUrlImageProvider();

    void ConfigureAuthorization(QNetworkRequest& request) const;

    static NewUrlImageProvider* s_pInstance;

    std::shared_ptr<QNetworkAccessManager> m_spNetworkAccessManager;
};

} // namespace tarnnuq
