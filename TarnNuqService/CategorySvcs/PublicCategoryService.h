#pragma once

#include "Records/ICategory.h"
#include "TarnNuqServiceExport.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <memory>
#include <string>

class QJsonArray;
class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace tarnnuq {

/// The public (cloud) component categories with the number of components in each.
///
/// The first good reply fills a cache that lives as long as the process; later replies refresh only the counts. The
/// tree is implied by the parent ids of the flat list, which is ordered by weight. One instance a process, used on
/// the thread that made it. There is no time-out and no retry; replies are applied in the order in which they finish.
class TARNNUQSERVICE_EXPORT PublicCategoryService : public QObject
{
    Q_OBJECT

public:
    /// @return the single instance, made on the first call and never destroyed
    static PublicCategoryService* Get();

    /// Requests the categories, or only their counts when they are known; the result arrives through
    /// OnCategoriesUpdated(). Without a configured endpoint the request fails like any other; where no request can be
    /// sent at all, a debug warning is raised and no signal follows.
    /// @param keyword counts only components that match it; empty for all; percent-encoded here
    void RequestCategories(QString keyword);

    /// Looks a category up by its id.
    /// @param id a category id in plain decimal; "07", "+7" and blanks match nothing
    /// @return the first category with that id, owned by the cache and valid until the next reply changes it; null
    /// when there is none
    ICategory* GetCategoryById(std::wstring id);

    /// Walks from a category to its outermost ancestor in the cache.
    /// @param id a category id in plain decimal
    /// @return the chain from the outermost ancestor in the cache down to the category itself, each once; empty when
    /// there is no such category. Pointers as in GetCategoryById().
    QList<ICategory*> GetFullCategories(std::wstring id);

Q_SIGNALS:
    /// The reply to a request has been handled, well or not: after a failed refresh every count is 0.
    /// @param categories a copy of the whole cache, ordered by weight
    void OnCategoriesUpdated(QList<ICategory> categories);

private:
    friend class PublicCategoryServiceAccess; // the seam for tests

    PublicCategoryService();
    ~PublicCategoryService() override;

    void ConfigureAuthorization(QNetworkRequest& request) const;
    QString CategoriesUrl(const QString& keyword) const;
    void HandleReply(QNetworkReply& reply);
    void ApplyBody(const QByteArray& body);
    void LoadCategories(const QJsonArray& array);
    void RefreshCounts(const QJsonArray& array);
    void ResetCounts();
    int FindById(int id) const;

    static PublicCategoryService* s_pInstance;

    QList<ICategory> m_categories;
    std::shared_ptr<QNetworkAccessManager> m_spNetworkManager;
    QString m_apiEndPoint;
};

} // namespace tarnnuq

Q_DECLARE_METATYPE(tarnnuq::ICategory)
