#pragma once

#include "Providers/NewUrlImageProvider.h"

#include <QNetworkAccessManager>
#include <utility>

namespace tarnnuq {

/// What an image file provider keeps to itself, and a provider that ends with its test.
class NewUrlImageProviderAccess
{
public:
    NewUrlImageProvider& Provider() { return m_provider; }
    static NewUrlImageProvider* Instance() { return NewUrlImageProvider::s_pInstance; }
    static std::shared_ptr<QNetworkAccessManager> Manager(const NewUrlImageProvider& provider)
    {
        return provider.m_spNetworkAccessManager;
    }
    void SetManager(std::shared_ptr<QNetworkAccessManager> manager)
    {
        m_provider.m_spNetworkAccessManager = std::move(manager);
    }
    void Authorize(QNetworkRequest& request) const { m_provider.ConfigureAuthorization(request); }

private:
    NewUrlImageProvider m_provider;
};

} // namespace tarnnuq
