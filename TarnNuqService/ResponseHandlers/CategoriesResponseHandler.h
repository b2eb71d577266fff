#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's list of categories, in the order of the reply, and marks the leaves.
///
/// A payload that is no array gives an empty list; an element that is no object gives a category of defaults.
class TARNNUQSERVICE_EXPORT CategoriesResponseHandler : public ResponseHandlerBase<RecordList<ICategory>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    CategoriesResponseHandler();
    ~CategoriesResponseHandler() override;
    CategoriesResponseHandler(const CategoriesResponseHandler& other);
    CategoriesResponseHandler& operator=(const CategoriesResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
