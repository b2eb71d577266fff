#pragma once

#include "PropertySvcs/CategoryConverters.h"
#include "PropertySvcs/PropertyTyping.h"
#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CustomReply.h"
#include "TarnNuqServiceExport.h"

#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QNetworkAccessManager;
class QNetworkRequest;

namespace tarn {
class ITarnCategoryInfo;
} // namespace tarn

namespace tarnnuq {

/// What the host itself knows about component categories: their tree, their properties, their legends, and the cloud's
/// legends and category mappings for them.
///
/// The tree is a flat list in depth-first order: a root with the code "0", the disciplines, the categories of each and
/// the end categories beneath those. It is built once, when the service is made; later changes of the host's category
/// library are seen by Init() alone. Properties and local legends are asked of the host by each call. One instance a
/// process, made and used on one thread; the tree may be read from any thread once it is built. The host's category
/// objects have to outlive the service.
class TARNNUQSERVICE_EXPORT PropertyService : public QObject
{
    Q_OBJECT

public:
    /// @return the single instance, made on the first call and never destroyed
    static PropertyService* Get();

    /// Builds the tree again from the host's category library. What the host lacks is reported by debug warnings and
    /// left out; without a category library the tree is the root alone. End categories found earlier stay known.
    void Init();

    /// @return the tree, root first. The records are the service's own: whoever writes into one writes into the tree.
    std::vector<std::shared_ptr<ICategory>> GetCategories();

    /// Looks a category up by its code.
    /// @param code compared exactly, in whole and with case
    /// @return the first in tree order; null when there is none
    std::shared_ptr<ICategory> GetCategoryByCode(const std::wstring& code);

    /// Looks the host's object of a leaf up.
    /// @param code the code of a category without end categories, or the host's own key of an end category
    /// @return the host's object, which the host owns; null when there is none
    const tarn::ITarnCategoryInfo* GetEndTarnCategoryByCode(const std::wstring& code);

    /// Walks from a category to its discipline.
    /// @param code the category's code, compared exactly
    /// @return the chain from the discipline down to the first category with that code, each once and without the root;
    /// the root alone for the root's own code; empty when there is no such category
    std::vector<std::shared_ptr<ICategory>> GetFullCategories(std::wstring code);

    /// Reads the type parameters that the host defines for a category. Asks the host each time.
    ///
    /// Null properties are reported by debug warnings and left out, properties of instances silently. Of several with
    /// one name the last by sort index counts.
    /// @param code the category's code, as the host knows it
    /// @return the property set; null for an unknown code, and, with a debug warning, without a category library
    std::shared_ptr<ICategoryProperty> GetCategoryProperty(const std::wstring& code) const;

    /// Reads a category's legends from the host's component database. Asks the host each time.
    /// @param categoryCode the category's code, as the host knows it
    /// @param type the view
    /// @return the legends by their id texts, each with the full path of its image, with backslashes, as thumbnail;
    /// empty when there are none or the database cannot be read. An id that is no number is 0.
    std::vector<std::shared_ptr<ILegend>> GetLegends(const std::wstring& categoryCode, const ILegend::LegendType& type);

    /// Requests one page of a category's legends from the cloud. Nothing is percent-encoded here.
    /// @param categoryCode the category's code on the cloud service
    /// @param type the view
    /// @param pageSize how many legends a page has
    /// @param page which page, as the cloud service counts them
    /// @param softwareVersion the version of the host product
    /// @return the pending reply, which the caller owns; null, with a debug warning, when no request can be sent
    CustomReply<IPagedData<std::vector<std::shared_ptr<ILegend>>>>* GetLegendsFromCloud(
        const std::wstring& categoryCode, const ILegend::LegendType& type, const int& pageSize, const int& page,
        const std::wstring& softwareVersion) const;

    /// Requests the mappings of cloud categories onto the categories of the host's component editor. Nothing is
    /// percent-encoded here.
    /// @param softwareVersion the version of the host product
    /// @return the pending reply, which the caller owns; null, with a debug warning, when no request can be sent
    CustomReply<std::vector<std::shared_ptr<ICategoryMapping>>>* GetComponentEditorCategoryMappings(
        const std::wstring& softwareVersion) const;

private:
    friend class PropertyServiceAccess; // the seam for tests

    PropertyService();
    ~PropertyService() override;

    void ConfigureAuthorization(QNetworkRequest& request) const;
    QNetworkRequest AuthorizedRequest(const QString& url) const;

    static PropertyService* s_pInstance;

    std::shared_ptr<QNetworkAccessManager> m_spNetworkManager;
    QString m_apiEndPoint;
    std::vector<std::shared_ptr<ICategory>> m_categories;
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> m_endCategories;
};

} // namespace tarnnuq
