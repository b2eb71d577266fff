#include "Requests/Catalogue.h"

#include "EnvSvcs/EnvService.h"
#include "tarnnuq/AppService.h"

namespace componentlibrary {
namespace {

QString MajorText()
{
    const auto major = tarnnuq::AppService::GetMajor();
    return major == tarnnuq::None ? QString() : QString::number(static_cast<int>(major));
}

QString VersionText()
{
    return QString::fromStdWString(tarnnuq::AppService::Get()->GeFormattedProductVersion(L"0.0"));
}

} // namespace

Catalogue::Catalogue(ChannelSettings settings)
    : Catalogue(std::move(settings), QString::fromStdWString(tarnnuq::EnvService::GetPyxApiEndPoint()))
{
}

Catalogue::Catalogue(ChannelSettings settings, const QString& apiEndPoint)
    : m_urls(apiEndPoint), m_hasEndPoint(!apiEndPoint.trimmed().isEmpty()), m_major(MajorText()),
      m_version(VersionText()), m_channel(std::move(settings))
{
}

template <class RequestType>
std::unique_ptr<RequestType> Catalogue::Make(Operation operation, const QUrl& address, ShapeCheck check)
{
    auto request = std::make_unique<RequestType>(m_channel, operation, address, check);
    if (!address.isValid())
        request->Refuse(ReasonOfBadAddress());
    return request;
}

ErrorCode Catalogue::ReasonOfBadAddress() const
{
    if (!m_hasEndPoint)
        return ErrorCode::ConfigurationNoEndpoint;
    // With a sound endpoint only an id that can be no part of a path is left: nothing has such an id.
    return m_urls.Projects().isValid() ? ErrorCode::NotFound : ErrorCode::ConfigurationBadEndpoint;
}

std::unique_ptr<CategoriesRequest> Catalogue::Categories(const QString& keyword)
{
    return Make<CategoriesRequest>(Operation::LoadCategories, m_urls.Categories(keyword, m_major, m_version), &IsArray);
}

std::unique_ptr<ComponentPageRequest> Catalogue::ComponentPage(const ComponentQuery& query)
{
    return Make<ComponentPageRequest>(Operation::LoadComponents, m_urls.ComponentPage(query), &IsPage);
}

std::unique_ptr<ComponentRequest> Catalogue::Component(const QString& componentId, const QString& projectId)
{
    return Make<ComponentRequest>(Operation::LoadComponent, m_urls.Component(componentId, projectId), &IsRecord);
}

std::unique_ptr<ExistenceRequest> Catalogue::Existence(const QString& publicComponentId, const QString& projectId)
{
    return Make<ExistenceRequest>(Operation::CheckExistence, m_urls.Existence(publicComponentId, projectId), &IsRecord);
}

std::unique_ptr<SpecificationsRequest> Catalogue::Specifications(const QString& componentId, const QString& projectId)
{
    return Make<SpecificationsRequest>(
        Operation::LoadSpecifications, m_urls.Specifications(componentId, projectId), &IsSpecificationList);
}

std::unique_ptr<SpecificationRequest> Catalogue::Specification(
    const QString& componentId, const QString& familyType, const QString& projectId)
{
    return Make<SpecificationRequest>(
        Operation::LoadSpecification, m_urls.Specification(componentId, familyType, projectId), &IsSpecification);
}

std::unique_ptr<PropertyTemplateRequest> Catalogue::PropertyTemplate(const QString& categoryCode)
{
    return Make<PropertyTemplateRequest>(
        Operation::LoadPropertyTemplate, m_urls.PropertyTemplate(categoryCode), &IsRecord);
}

std::unique_ptr<ProjectsRequest> Catalogue::Projects()
{
    return Make<ProjectsRequest>(Operation::LoadProjects, m_urls.Projects(), &IsArray);
}

std::unique_ptr<LegendsRequest> Catalogue::Legends(const QString& categoryCode, int view, int page, int pageSize)
{
    return Make<LegendsRequest>(
        Operation::LoadLegends, m_urls.Legends(categoryCode, view, page, pageSize, m_version), &IsPage);
}

std::unique_ptr<MappingsRequest> Catalogue::Mappings()
{
    return Make<MappingsRequest>(Operation::LoadMappings, m_urls.Mappings(m_version), &IsArray);
}

} // namespace componentlibrary
