#pragma once

#include "TarnNuqServiceExport.h"

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <string>

namespace tarnnuq {

/// A pending reply: wraps a running network reply, handles it when it finishes and says so with one signal.
///
/// Whoever receives a pending reply owns it and deletes it, typically with `deleteLater()` from its receiver of
/// Finished(); deleting it inside the receiver is harmless, too. The pending reply owns its network reply from
/// SetReply() on. Lives on the thread of the network reply.
class TARNNUQSERVICE_EXPORT CustomReplyBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent the Qt parent; null leaves the ownership with the caller
    explicit CustomReplyBase(QObject* parent);
    ~CustomReplyBase() override;

    /// Attaches the network reply and takes it over.
    ///
    /// A reply attached before is given up: it is deleted later and no longer reacted to; attaching the same one again
    /// changes nothing. A reply that has already finished is not noticed: no Finished() follows. Null ends the pending
    /// reply at once with the error "internal reply is null." and emits Finished() inside this call.
    /// @param reply the running reply; may be null
    void SetReply(QNetworkReply* reply);

    /// @return the error text, empty on success; valid from Finished() on. The text of an earlier end stays until the
    /// next attached reply has been handled.
    std::wstring Error() const;

Q_SIGNALS:
    /// The reply has been handled, well or not; see Error(). Emitted once for each attached reply that finishes: not
    /// for one that was given up for another, or deleted (by its network manager, say) before it finished.
    void Finished();

private Q_SLOTS:
    void HandleReply();

protected:
    /// Handles the finished reply: fills the result or `m_error`, which is empty at the start.
    virtual void PrivateHandleReply();

    QPointer<QNetworkReply> m_reply; ///< The attached reply; null before SetReply() and when it has died.
    std::wstring m_error;            ///< The error text; empty means success.

private:
    void Release(const QPointer<QNetworkReply>& reply) noexcept;
};

} // namespace tarnnuq
