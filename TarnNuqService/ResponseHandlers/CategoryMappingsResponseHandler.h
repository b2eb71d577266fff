#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's list of category mappings onto the host's component editor, in the order of the reply.
///
/// A payload that is no array gives an empty list.
class TARNNUQSERVICE_EXPORT CategoryMappingsResponseHandler : public ResponseHandlerBase<RecordList<ICategoryMapping>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    CategoryMappingsResponseHandler();
    ~CategoryMappingsResponseHandler() override;
    CategoryMappingsResponseHandler(const CategoryMappingsResponseHandler& other);
    CategoryMappingsResponseHandler& operator=(const CategoryMappingsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
