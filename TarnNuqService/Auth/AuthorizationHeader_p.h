#pragma once

#include <string>

class QNetworkRequest;

namespace tarnnuq {

/// Sets the "Authorization" header to a value, an empty one included.
void SetAuthorizationHeader(QNetworkRequest& request, const std::wstring& value);

/// Writes the record about the header that was set.
void LogAuthorizationHeader(const std::wstring& value);

} // namespace tarnnuq
