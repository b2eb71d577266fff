#include "ResponseHandlers/CustomReplyBase.h"

#include "Common/ReleaseReply.h"

namespace tarnnuq {

namespace {

constexpr std::size_t LongestOwnError = 32;

} // namespace

// HandleReply() is called from a signal of the network reply, which no exception may cross. The memory for its guard
// and for the text of an exception is therefore taken here.
CustomReplyBase::CustomReplyBase(QObject* parent) : QObject(parent)
{
    m_error.reserve(LongestOwnError);
    const QPointer<CustomReplyBase> guard(this);
}

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

void CustomReplyBase::Release(const QPointer<QNetworkReply>& reply) noexcept
{
    if (reply) {
        disconnect(reply, &QNetworkReply::finished, this, &CustomReplyBase::HandleReply);
        ReleaseReply(*reply);
    }
}

} // namespace tarnnuq
