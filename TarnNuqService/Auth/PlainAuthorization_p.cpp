#include "Auth/PlainAuthorization_p.h"

#include "Auth/AuthorizationHeader_p.h"
#include "tarnnuq/UserService.h"

namespace tarnnuq {

void SetPlainAuthorization(QNetworkRequest& request)
{
    const std::wstring value = UserService::Get()->GetToken();
    SetAuthorizationHeader(request, value);
    LogAuthorizationHeader(value);
}

void SetUnloggedPlainAuthorization(QNetworkRequest& request)
{
    SetAuthorizationHeader(request, UserService::Get()->GetToken());
}

} // namespace tarnnuq
