#include "PropertySvcs/PropertyService.h"

#include "Auth/RequestAuthorization.h"
#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "PropertySvcs/CategoryByCode_p.h"
#include "PropertySvcs/CategoryTreeBuilder_p.h"
#include "PropertySvcs/LocalLegends_p.h"
#include "PropertySvcs/PropertySetReader_p.h"
#include "ResponseHandlers/MakePendingReply_p.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "tarn/ITarnCategoryInfoUtils.h"
#include "tarn/TarnCategoryInfoUtilsHandler.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QUrl>

namespace tarnnuq {

namespace {

constexpr const char* File = "PropertySvcs/PropertyService.cpp";
constexpr WarningSource InitSource{File, __LINE__, "tarnnuq::PropertyService::Init"};
constexpr WarningSource PropertySource{File, __LINE__, "tarnnuq::PropertyService::GetCategoryProperty"};
constexpr WarningSource LegendsSource{File, __LINE__, "tarnnuq::PropertyService::GetLegends"};
constexpr WarningSource CloudLegendsSource{File, __LINE__, "tarnnuq::PropertyService::GetLegendsFromCloud"};
constexpr WarningSource MappingsSource{File, __LINE__, "tarnnuq::PropertyService::GetComponentEditorCategoryMappings"};

} // namespace

PropertyService* PropertyService::s_pInstance = nullptr;

PropertyService* PropertyService::Get()
{
    if (!s_pInstance) {
        s_pInstance = new PropertyService;
    }
    return s_pInstance;
}

PropertyService::PropertyService()
    : m_spNetworkManager(std::make_shared<QNetworkAccessManager>()),
      m_apiEndPoint(QString::fromStdWString(EnvService::GetPyxApiEndPoint()))
{
    Init();
}

PropertyService::~PropertyService() = default;

void PropertyService::Init()
{
    // Only the tree: what was a leaf once is still found, since the host keeps its objects.
    m_categories.clear();
    CategoryTreeBuilder(m_categories, m_endCategories, InitSource).Build();
}

std::vector<std::shared_ptr<ICategory>> PropertyService::GetCategories()
{
    return m_categories;
}

std::shared_ptr<ICategory> PropertyService::GetCategoryByCode(const std::wstring& code)
{
    return FindByCode(m_categories, code);
}

const tarn::ITarnCategoryInfo* PropertyService::GetEndTarnCategoryByCode(const std::wstring& code)
{
    const auto endCategory = m_endCategories.find(code);
    return endCategory == m_endCategories.end() ? nullptr : endCategory->second;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
std::vector<std::shared_ptr<ICategory>> PropertyService::GetFullCategories(std::wstring code)
{
    return ChainByCode(m_categories, code);
}

std::shared_ptr<ICategoryProperty> PropertyService::GetCategoryProperty(const std::wstring& code) const
{
    auto spCategoryProperty = MakeRecord<ICategoryProperty>();
    const tarn::ITarnCategoryInfoUtils* pUtil = tarn::TarnCategoryInfoUtilsHandler::Get().GetUtils();
    if (!pUtil || !spCategoryProperty) {
        WarnNull(PropertySource, L"pUtil 或spCategoryProperty为空");
        return nullptr;
    }
    const tarn::ITarnCategoryInfo* info = nullptr;
    if (!pUtil->FindCategoryByCode(code, info) || !info) {
        return nullptr;
    }
    ReadPropertySet(*info, PropertySource, *spCategoryProperty);
    return spCategoryProperty;
}

std::vector<std::shared_ptr<ILegend>> PropertyService::GetLegends(
    const std::wstring& categoryCode, const ILegend::LegendType& type)
{
    return ReadLocalLegends(categoryCode, type, LegendsSource);
}

CustomReply<RecordPage<ILegend>>* PropertyService::GetLegendsFromCloud(const std::wstring& categoryCode,
    const ILegend::LegendType& type, const int& pageSize, const int& page, const std::wstring& softwareVersion) const
{
    const QString url =
        QStringLiteral("%1/v1/metadata/placeholders?category_code=%2&type=%3&page_size=%4&page=%5&software_version=%6")
            .arg(m_apiEndPoint, QString::fromStdWString(categoryCode),
                QString::number(ILegend::GetLegendTypeInDigitalModule(type)), QString::number(pageSize),
                QString::number(page), QString::fromStdWString(softwareVersion));
    INuqLogger::Get()->Info(
        QString(QLatin1String("request for legends from pyx digital component module. request url: ") + url));
    const QNetworkRequest request = AuthorizedRequest(url);
    auto pCustomReply = MakePendingReply<CustomReply<RecordPage<ILegend>>>();
    if (!pCustomReply || !m_spNetworkManager) {
        WarnNull(CloudLegendsSource, L"m_spNetworkManager 为空");
        return nullptr;
    }
    pCustomReply->SetResponseHandler(MakeRecord<PagedLegendsResponseHandler>());
    pCustomReply->SetReply(m_spNetworkManager->get(request));
    return pCustomReply.release();
}

CustomReply<RecordList<ICategoryMapping>>* PropertyService::GetComponentEditorCategoryMappings(
    const std::wstring& softwareVersion) const
{
    const QString url = QStringLiteral("%1/v1/hox_design/category/mappings?software_version=%2")
                            .arg(m_apiEndPoint, QString::fromStdWString(softwareVersion));
    INuqLogger::Get()->Info(QString(
        QLatin1String("request for component editor category mappings from pyx property module. request url: ") + url));
    const QNetworkRequest request = AuthorizedRequest(url);
    auto pCustomReply = MakePendingReply<CustomReply<RecordList<ICategoryMapping>>>();
    if (!pCustomReply || !m_spNetworkManager) {
        WarnNull(MappingsSource, L"pCustomReply 为空");
        return nullptr;
    }
    pCustomReply->SetReply(m_spNetworkManager->get(request));
    return pCustomReply.release();
}

void PropertyService::ConfigureAuthorization(QNetworkRequest& request) const
{
    SetEnvironmentAwareAuthorization(request);
}

QNetworkRequest PropertyService::AuthorizedRequest(const QString& url) const
{
    QNetworkRequest request;
    request.setUrl(QUrl(url, QUrl::TolerantMode));
    ConfigureAuthorization(request);
    return request;
}

} // namespace tarnnuq
