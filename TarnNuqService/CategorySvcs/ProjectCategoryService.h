#pragma once

#include "Records/ICategory.h"
#include "TarnNuqServiceExport.h"

#include <QObject>
#include <QString>
#include <memory>
#include <string>
#include <vector>

class QNetworkAccessManager;
class QNetworkRequest;

namespace tarnnuq {

/// The categories under which a project keeps its components: the local category tree as it was when this service was
/// made, for look-ups.
///
/// The list is never refreshed, while its records are those of the property service. Sends no requests. One instance
/// a process, used on the thread that made it.
class TARNNUQSERVICE_EXPORT ProjectCategoryService : public QObject
{
    Q_OBJECT

public:
    /// @return the single instance, made on the first call, together with the property service, and never destroyed
    static ProjectCategoryService* Get();

    /// Looks a category up by its code.
    /// @param code compared exactly, in whole and with case
    /// @return the first in tree order; null when there is none
    std::shared_ptr<ICategory> GetCategoryByCode(const std::wstring& code);

    /// Looks a category up by its numeric id. The local tree has text ids and leaves the numeric ones at 0, so that "0"
    /// is the root and nothing else is found as long as nobody writes numeric ids into the records.
    /// @param id a numeric id in plain decimal; "00", "+0" and blanks match nothing
    /// @return the first in tree order; null when there is none
    std::shared_ptr<ICategory> GetCategoryById(const std::wstring& id);

private:
    friend class ProjectCategoryServiceAccess; // the seam for tests

    ProjectCategoryService();
    ~ProjectCategoryService() override;

    void Init();
    void ConfigAuthorization(QNetworkRequest& request) const;

    static ProjectCategoryService* s_pInstance;

    std::shared_ptr<QNetworkAccessManager> m_spNetworkManager;
    QString m_structureEndPoint;
    std::vector<std::shared_ptr<ICategory>> m_categories;
};

} // namespace tarnnuq
