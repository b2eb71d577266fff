#pragma once

#include <QJsonValue>
#include <QString>
#include <string>

namespace tarnnuq {

/// Joins thumbnail paths to the static resource endpoint: a path that is not empty becomes "%1/%2" of the two.
class ThumbnailUrl
{
public:
    explicit ThumbnailUrl(const QString& staticEndPoint);

    /// @param path the path as sent; anything but a text counts as empty
    /// @return the full URL; empty for an empty path
    std::wstring Join(const QJsonValue& path) const;

private:
    QString m_staticEndPoint;
    std::wstring m_prefix; ///< Endpoint and slash; empty when the endpoint may hold place markers.
};

} // namespace tarnnuq
