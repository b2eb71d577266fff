#pragma once

#include "ResponseHandlers/ResponseHandlerBase.h"
#include "TarnNuqServiceExport.h"

#include <QString>

namespace tarnnuq {

/// Maps a reply's list of legends, in the order of the reply. The standard source is not read from this reply.
///
/// A payload that is no array gives an empty list.
class TARNNUQSERVICE_EXPORT LegendsResponseHandler : public ResponseHandlerBase<RecordList<ILegend>>
{
public:
    /// Copies the static resource endpoint, which stays the same for the handler's life.
    LegendsResponseHandler();
    ~LegendsResponseHandler() override;
    LegendsResponseHandler(const LegendsResponseHandler& other);
    LegendsResponseHandler& operator=(const LegendsResponseHandler& other);

protected:
    void HandleData(const QJsonValue& data) override;

private:
    QString m_staticEndPoint;
};

} // namespace tarnnuq
