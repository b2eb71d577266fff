#include "FaultRelay/BodyFraming.h"

#include <algorithm>

namespace nuqcloud {
namespace {

constexpr int kLongestLine = 8192;
constexpr int kChunkEnd = 2; // the line end behind a chunk's data

bool IsChunked(const HttpHead& head)
{
    return head.Value("Transfer-Encoding").toLower().contains("chunked");
}

} // namespace

BodyFraming BodyFraming::Of(const HttpHead& head, State withoutLength)
{
    BodyFraming framing;
    if (IsChunked(head)) {
        framing.m_state = State::ChunkSize;
        framing.m_promised = -1;
        return framing;
    }
    bool isNumber = false;
    const qint64 length = head.Value("Content-Length").toLongLong(&isNumber);
    if (!isNumber || length < 0) {
        framing.m_state = withoutLength;
        framing.m_promised = withoutLength == State::Complete ? 0 : -1;
        return framing;
    }
    framing.m_state = length == 0 ? State::Complete : State::Counted;
    framing.m_promised = length;
    framing.m_left = length;
    return framing;
}

BodyFraming BodyFraming::OfRequest(const HttpHead& head)
{
    return Of(head, State::Complete);
}

BodyFraming BodyFraming::OfReply(const HttpHead& head, const QByteArray& method)
{
    const QByteArray status = head.Word(1);
    if (method == "HEAD" || status == "204" || status == "304") {
        return BodyFraming();
    }
    return Of(head, State::UntilClose);
}

int BodyFraming::Take(const QByteArray& bytes)
{
    int position = 0;
    while (position < bytes.size() && m_state != State::Complete) {
        if (m_state == State::UntilClose) {
            return bytes.size();
        }
        if (m_state == State::Counted || m_state == State::ChunkData) {
            const int taken = static_cast<int>(std::min<qint64>(m_left, bytes.size() - position));
            position += taken;
            m_left -= taken;
            if (m_left == 0) {
                m_state = m_state == State::Counted ? State::Complete : State::ChunkSize;
            }
            continue;
        }
        const char c = bytes[position++];
        if (c == '\n') {
            EndLine();
        } else if (c != '\r' && m_line.size() < kLongestLine) {
            m_line.append(c);
        }
    }
    return position;
}

void BodyFraming::EndLine()
{
    if (m_state == State::ChunkSize) {
        EndChunkSize();
    } else if (m_line.isEmpty()) {
        m_state = State::Complete;
    }
    m_line.clear();
}

/// What is no length ends the framing: the rest is passed on as it comes.
void BodyFraming::EndChunkSize()
{
    bool isNumber = false;
    const qint64 size = m_line.split(';').value(0).trimmed().toLongLong(&isNumber, 16);
    if (!isNumber || size < 0) {
        m_state = State::UntilClose;
    } else if (size == 0) {
        m_state = State::Trailer;
    } else {
        m_state = State::ChunkData;
        m_left = size + kChunkEnd;
    }
}

} // namespace nuqcloud
