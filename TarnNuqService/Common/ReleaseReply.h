#pragma once

#include <QNetworkReply>
#include <new>

namespace tarnnuq {

/// Deletes a handled network reply later. Without memory for that it stays with its network manager, which owns it,
/// too.
inline void ReleaseReply(QNetworkReply& reply) noexcept
{
    try {
        reply.deleteLater();
    } catch (const std::bad_alloc&) {
        return;
    }
}

} // namespace tarnnuq
