#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's property definitions of one category.
///
/// A payload that is no object, or an empty one, gives null.
class TARNNUQSERVICE_EXPORT CategoryPropertyResponseHandler : public ResponseHandlerBase<RecordPtr<ICategoryProperty>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    CategoryPropertyResponseHandler();
    ~CategoryPropertyResponseHandler() override;
    CategoryPropertyResponseHandler(const CategoryPropertyResponseHandler& other);
    CategoryPropertyResponseHandler& operator=(const CategoryPropertyResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
