#include "Auth/AuthorizationHeader_p.h"

#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"

#include <QNetworkRequest>
#include <QString>

namespace tarnnuq {

void SetAuthorizationHeader(QNetworkRequest& request, const std::wstring& value)
{
    // A null byte array would take the header away instead of setting an empty one.
    const QByteArray bytes = value.empty() ? QByteArray("") : QString::fromStdWString(value).toUtf8();
    request.setRawHeader("Authorization", bytes);
}

void LogAuthorizationHeader(const std::wstring& value)
{
    INuqLogger::Get()->Debug({"Authorization header: ", value});
}

} // namespace tarnnuq
