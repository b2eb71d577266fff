#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <algorithm>

namespace tarnnuq {

ThumbnailUrl::ThumbnailUrl(const QString& staticEndPoint) : m_staticEndPoint(staticEndPoint)
{
    if (!staticEndPoint.contains(QLatin1Char('%'))) {
        m_prefix = staticEndPoint.toStdWString() + L'/';
    }
}

std::wstring ThumbnailUrl::Join(const QJsonValue& path) const
{
    const QString text = path.toString();
    if (text.isEmpty()) {
        return {};
    }
    if (m_prefix.empty()) {
        // Filled one after the other on purpose: a marker inside the endpoint is filled, too.
        return QStringLiteral("%1/%2").arg(m_staticEndPoint).arg(text).toStdWString();
    }
    const auto prefixSize = m_prefix.size();
    std::wstring url(prefixSize + static_cast<std::size_t>(text.size()), L'\0');
    std::copy(m_prefix.begin(), m_prefix.end(), url.begin());
    url.resize(prefixSize + static_cast<std::size_t>(text.toWCharArray(&url[prefixSize])));
    return url;
}

} // namespace tarnnuq
