#include "Auth/RequestAuthorization.h"

#include "Auth/AuthorizationHeader_p.h"
#include "EnvSvcs/EnvService.h"
#include "tarnnuq/UserService.h"

#include <QString>

namespace tarnnuq {

namespace {

bool IsQaEnvironment()
{
    const QString environment = QString::fromStdWString(EnvService::GetWabCurrentEnv());
    return environment.compare(QLatin1String("qa"), Qt::CaseInsensitive) == 0;
}

std::wstring QaHeaderValue()
{
    const std::wstring token = UserService::Get()->GetTokenInQa();
    return token.empty() ? token : L"bearer " + token;
}

} // namespace

void SetEnvironmentAwareAuthorization(QNetworkRequest& request)
{
    // Only the qa environment wants a scheme word; the others take the bare token.
    const std::wstring value = IsQaEnvironment() ? QaHeaderValue() : UserService::Get()->GetToken();
    SetAuthorizationHeader(request, value);
    LogAuthorizationHeader(value);
}

} // namespace tarnnuq
