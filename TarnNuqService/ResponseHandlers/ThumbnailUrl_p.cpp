#include "ResponseHandlers/ThumbnailUrl_p.h"

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
    const std::wstring wideText = text.toStdWString();
    std::wstring url;
    url.reserve(m_prefix.size() + wideText.size());
    return url.append(m_prefix).append(wideText);
}

} // namespace tarnnuq
