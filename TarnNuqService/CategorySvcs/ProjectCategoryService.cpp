#include "CategorySvcs/ProjectCategoryService.h"

#include "Auth/PlainAuthorization_p.h"
#include "CategorySvcs/DecimalId_p.h"
#include "EnvSvcs/EnvService.h"
#include "PropertySvcs/CategoryByCode_p.h"
#include "PropertySvcs/PropertyService.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <algorithm>
#include <optional>

namespace tarnnuq {

ProjectCategoryService* ProjectCategoryService::s_pInstance = nullptr;

ProjectCategoryService* ProjectCategoryService::Get()
{
    if (!s_pInstance) {
        s_pInstance = new ProjectCategoryService;
    }
    return s_pInstance;
}

ProjectCategoryService::ProjectCategoryService()
    : m_spNetworkManager(std::make_shared<QNetworkAccessManager>()),
      m_structureEndPoint(QString::fromStdWString(EnvService::GetWabStructureEndPoint()))
{
    Init();
}

ProjectCategoryService::~ProjectCategoryService() = default;

std::shared_ptr<ICategory> ProjectCategoryService::GetCategoryByCode(const std::wstring& code)
{
    return FindByCode(m_categories, code);
}

std::shared_ptr<ICategory> ProjectCategoryService::GetCategoryById(const std::wstring& id)
{
    const std::optional<int> number = ParseDecimalId(id);
    if (!number) {
        return nullptr;
    }
    const auto found = std::find_if(m_categories.begin(), m_categories.end(),
        [&number](const std::shared_ptr<ICategory>& spCategory) { return spCategory->Id == *number; });
    return found == m_categories.end() ? nullptr : *found;
}

void ProjectCategoryService::Init()
{
    m_categories = PropertyService::Get()->GetCategories();
}

void ProjectCategoryService::ConfigAuthorization(QNetworkRequest& request) const
{
    SetUnloggedPlainAuthorization(request);
}

} // namespace tarnnuq
