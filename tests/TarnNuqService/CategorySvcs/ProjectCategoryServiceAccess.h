#pragma once

#include "CategorySvcs/ProjectCategoryService.h"

#include <QNetworkAccessManager>

namespace tarnnuq {

/// What the project category service keeps to itself, and a service that ends with its test.
class ProjectCategoryServiceAccess
{
public:
    ProjectCategoryService& Service() { return m_service; }
    QNetworkAccessManager* Manager() const { return m_service.m_spNetworkManager.get(); }
    const QString& StructureEndPoint() const { return m_service.m_structureEndPoint; }
    const std::vector<std::shared_ptr<ICategory>>& Categories() const { return m_service.m_categories; }
    void Authorize(QNetworkRequest& request) const { m_service.ConfigAuthorization(request); }

    /// The addresses of the members, in the order in which they are to stand.
    std::vector<const void*> Members() const
    {
        return {&m_service.m_spNetworkManager, &m_service.m_structureEndPoint, &m_service.m_categories};
    }

private:
    ProjectCategoryService m_service;
};

} // namespace tarnnuq
