#pragma once

#include "Providers/UrlImageProvider.h"

#include <QNetworkAccessManager>
#include <utility>

namespace tarnnuq {

/// What a URL image provider keeps to itself.
class UrlImageProviderAccess
{
public:
    static std::shared_ptr<QNetworkAccessManager> Manager(const UrlImageProvider& provider)
    {
        return provider.m_spNetworkAccessManager;
    }
    static void SetManager(UrlImageProvider& provider, std::shared_ptr<QNetworkAccessManager> manager)
    {
        provider.m_spNetworkAccessManager = std::move(manager);
    }
    static void Authorize(const UrlImageProvider& provider, QNetworkRequest& request)
    {
        provider.ConfigureAuthorization(request);
    }
    static void Handle(UrlImageProvider& provider, QNetworkReply& reply, const QString& filePath, std::wstring url)
    {
        provider.HandleReply(reply, filePath, std::move(url));
    }
};

} // namespace tarnnuq
