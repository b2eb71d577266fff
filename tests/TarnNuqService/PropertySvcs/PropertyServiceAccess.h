#pragma once

#include "PropertySvcs/PropertyService.h"

#include <QNetworkAccessManager>
#include <utility>

namespace tarnnuq {

/// What the property service keeps to itself, and a service that ends with its test.
class PropertyServiceAccess
{
public:
    using EndCategories = std::map<std::wstring, const tarn::ITarnCategoryInfo*>;

    PropertyService& Service() { return m_service; }
    QNetworkAccessManager* Manager() const { return m_service.m_spNetworkManager.get(); }
    void SetManager(std::shared_ptr<QNetworkAccessManager> manager)
    {
        m_service.m_spNetworkManager = std::move(manager);
    }
    const QString& ApiEndPoint() const { return m_service.m_apiEndPoint; }
    const std::vector<std::shared_ptr<ICategory>>& Categories() const { return m_service.m_categories; }
    const EndCategories& LeavesOfHost() const { return m_service.m_endCategories; }
    void Authorize(QNetworkRequest& request) const { m_service.ConfigureAuthorization(request); }

    /// The addresses of the members, in the order in which they are to stand.
    std::vector<const void*> Members() const
    {
        return {&m_service.m_spNetworkManager, &m_service.m_apiEndPoint, &m_service.m_categories,
            &m_service.m_endCategories};
    }

private:
    PropertyService m_service;
};

} // namespace tarnnuq
