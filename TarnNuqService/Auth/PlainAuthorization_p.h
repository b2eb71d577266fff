#pragma once

class QNetworkRequest;

namespace tarnnuq {

/// Sets the "Authorization" header to the user's token as it is, whatever the environment, and logs it.
void SetPlainAuthorization(QNetworkRequest& request);

/// Sets the "Authorization" header to the user's token as it is, whatever the environment, without a log record.
void SetUnloggedPlainAuthorization(QNetworkRequest& request);

} // namespace tarnnuq
