#include "Errors/AddressText.h"

#include <QStringList>
#include <QUrlQuery>

namespace componentlibrary {
namespace {

bool IsSecret(const QString& name)
{
    static const QStringList secrets = {QStringLiteral("token"), QStringLiteral("access_token"), QStringLiteral("key"),
        QStringLiteral("api_key"), QStringLiteral("password"), QStringLiteral("signature")};
    return secrets.contains(name, Qt::CaseInsensitive);
}

} // namespace

QString AddressText(const QUrl& url)
{
    QUrl shown = url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    if (!shown.hasQuery())
        return shown.toString(QUrl::FullyEncoded);
    QUrlQuery query;
    const auto items = QUrlQuery(shown).queryItems(QUrl::FullyEncoded);
    for (const auto& [name, value] : items)
        query.addQueryItem(name, IsSecret(name) ? QStringLiteral("***") : value);
    shown.setQuery(query);
    return shown.toString(QUrl::FullyEncoded);
}

} // namespace componentlibrary
