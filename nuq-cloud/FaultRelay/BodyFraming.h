#pragma once

#include "FaultRelay/HttpHead.h"

#include <QByteArray>
#include <QtGlobal>

namespace nuqcloud {

/// Follows a message's body byte by byte, so that its end is known: by length, by chunks, or by the connection's end.
class BodyFraming
{
public:
    /// A message without a body.
    BodyFraming() = default;

    static BodyFraming OfRequest(const HttpHead& head);

    /// @param method of the request: HEAD is answered without a body
    static BodyFraming OfReply(const HttpHead& head, const QByteArray& method);

    /// Looks at the next bytes and returns how many of them belong to the body.
    int Take(const QByteArray& bytes);

    bool IsComplete() const { return m_state == State::Complete; }
    bool EndsWithConnection() const { return m_state == State::UntilClose; }

    /// Bytes that the head promises, or -1 when it names no number.
    qint64 PromisedLength() const { return m_promised; }

private:
    enum class State
    {
        Complete,
        Counted,
        ChunkSize,
        ChunkData,
        Trailer,
        UntilClose
    };

    static BodyFraming Of(const HttpHead& head, State withoutLength);
    void EndLine();
    void EndChunkSize();

    State m_state = State::Complete;
    qint64 m_promised = 0;
    qint64 m_left = 0;
    QByteArray m_line;
};

} // namespace nuqcloud
