#pragma once

#include <QString>
#include <QUrl>

namespace componentlibrary {

/**
 * The URL as it may be shown, logged and reported: without user info, and with the values of parameters that carry
 * secrets (token, access_token, key, password, signature, in any case) replaced by "***".
 */
QString AddressText(const QUrl& url);

} // namespace componentlibrary
