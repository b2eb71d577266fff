#pragma once

#include "Projects/ProjectsResponseHandler.h"
#include "Requests/CatalogueUrls.h"
#include "Requests/HttpChannel.h"
#include "Requests/Request.h"
#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/CategoryMappingsResponseHandler.h"
#include "ResponseHandlers/CategoryPropertyResponseHandler.h"
#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"
#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"
#include "ResponseHandlers/SpecificationResponseHandler.h"
#include "ResponseHandlers/SpecificationsResponseHandler.h"

#include <memory>

namespace componentlibrary {

using CategoriesRequest = Request<tarnnuq::CategoriesResponseHandler>;
using ComponentPageRequest = Request<tarnnuq::PagedProjectComponentsResponseHandler>;
using ComponentRequest = Request<tarnnuq::DetailedProjectComponentResponseHandler>;
using ExistenceRequest = Request<tarnnuq::ProjectComponentExistingCheckResponseHandler>;
using SpecificationsRequest = Request<tarnnuq::SpecificationsResponseHandler>;
using SpecificationRequest = Request<tarnnuq::SpecificationResponseHandler>;
using PropertyTemplateRequest = Request<tarnnuq::CategoryPropertyResponseHandler>;
using ProjectsRequest = Request<ProjectsResponseHandler>;
using LegendsRequest = Request<tarnnuq::PagedLegendsResponseHandler>;
using MappingsRequest = Request<tarnnuq::CategoryMappingsResponseHandler>;

/**
 * Makes the requests of the component catalogue; the one class an application needs to ask the service.
 *
 * Each operation returns a request that is not started yet: connect to Finished, then Start() it. The caller owns it.
 * The endpoint, the discipline and the product version are read once, in the constructor.
 */
class Catalogue
{
public:
    /**
     * @param settings   see ChannelSettings
     * @param apiEndPoint base address; by default that of the library's current environment
     */
    explicit Catalogue(ChannelSettings settings = {});
    Catalogue(ChannelSettings settings, const QString& apiEndPoint);

    HttpChannel& Channel() { return m_channel; }
    const CatalogueUrls& Urls() const { return m_urls; }

    /** All categories with their counts, in the service's order, with leaves marked. @param keyword may be empty */
    std::unique_ptr<CategoriesRequest> Categories(const QString& keyword);

    std::unique_ptr<ComponentPageRequest> ComponentPage(const ComponentQuery& query);

    /** @param projectId empty for the public catalogue, here and below */
    std::unique_ptr<ComponentRequest> Component(const QString& componentId, const QString& projectId);

    std::unique_ptr<ExistenceRequest> Existence(const QString& publicComponentId, const QString& projectId);
    std::unique_ptr<SpecificationsRequest> Specifications(const QString& componentId, const QString& projectId);
    std::unique_ptr<SpecificationRequest> Specification(
        const QString& componentId, const QString& familyType, const QString& projectId);
    std::unique_ptr<PropertyTemplateRequest> PropertyTemplate(const QString& categoryCode);
    std::unique_ptr<ProjectsRequest> Projects();

    /** @param view -1 for all views, 0 plan, 1 elevation, 2 profile */
    std::unique_ptr<LegendsRequest> Legends(const QString& categoryCode, int view, int page, int pageSize);

    std::unique_ptr<MappingsRequest> Mappings();

private:
    template <class RequestType>
    std::unique_ptr<RequestType> Make(Operation operation, const QUrl& address, ShapeCheck check);
    ErrorCode ReasonOfBadAddress() const;

    CatalogueUrls m_urls;
    bool m_hasEndPoint;
    QString m_major;
    QString m_version;
    HttpChannel m_channel;
};

} // namespace componentlibrary
