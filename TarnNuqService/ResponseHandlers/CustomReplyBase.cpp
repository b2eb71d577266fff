#include "ResponseHandlers/CustomReplyBase.h"

namespace tarnnuq {

CustomReplyBase::CustomReplyBase(QObject* parent) : QObject(parent) {}

CustomReplyBase::~CustomReplyBase()
{
    Release(m_reply);
}

void CustomReplyBase::SetReply(QNetworkReply* reply)
{
    if (reply && reply == m_reply) {
        return;
    }
    Release(m_reply);
    m_reply = reply;
    if (!reply) {
        m_error = L"internal reply is null.";
        Q_EMIT Finished();
        return;
    }
    connect(reply, &QNetworkReply::finished, this, &CustomReplyBase::HandleReply);
}

std::wstring CustomReplyBase::Error() const
{
    return m_error;
}

void CustomReplyBase::HandleReply()
{
    // The receiver of Finished() may delete this object or attach another reply.
    const QPointer<CustomReplyBase> self(this);
    const QPointer<QNetworkReply> handled(m_reply);
    m_error.clear();
    PrivateHandleReply();
    Q_EMIT Finished();
    if (self) {
        Release(handled);
    }
}

void CustomReplyBase::PrivateHandleReply() {}

void CustomReplyBase::Release(const QPointer<QNetworkReply>& reply)
{
    if (reply) {
        disconnect(reply, &QNetworkReply::finished, this, &CustomReplyBase::HandleReply);
        reply->deleteLater();
    }
}

} // namespace tarnnuq
