#pragma once

#include "CategorySvcs/PublicCategoryService.h"

#include <QNetworkAccessManager>
#include <utility>

namespace tarnnuq {

/// What the public category service keeps to itself, and a service that ends with its test.
class PublicCategoryServiceAccess
{
public:
    PublicCategoryService& Service() { return m_service; }
    QNetworkAccessManager* Manager() const { return m_service.m_spNetworkManager.get(); }
    void SetManager(std::shared_ptr<QNetworkAccessManager> manager)
    {
        m_service.m_spNetworkManager = std::move(manager);
    }
    const QList<ICategory>& Categories() const { return m_service.m_categories; }
    void SetCategories(const QList<ICategory>& categories) { m_service.m_categories = categories; }
    void Handle(QNetworkReply& reply) { m_service.HandleReply(reply); }

private:
    PublicCategoryService m_service;
};

} // namespace tarnnuq
