#pragma once

#include "TarnNuqServiceExport.h"

class QNetworkRequest;

namespace tarnnuq {

/// Sets the "Authorization" header of a request from the signed-in user's token, by the current design-cloud
/// environment, and logs it.
///
/// In the environment "qa" (in any case) the value is "bearer " and the token for that environment, or empty when
/// there is none; in every other environment it is the user's token as it is. An empty value is still set, and an
/// earlier header of that name is replaced. The record is two-part, "Authorization header: " and the value, through
/// the logger's fourth operation; masking it is the logger's business.
/// @param request the request to authorize
TARNNUQSERVICE_EXPORT void SetEnvironmentAwareAuthorization(QNetworkRequest& request);

} // namespace tarnnuq
