#include "support/ScriptedResponse.h"

namespace testsupport {

namespace {

QByteArray ReasonOf(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 204:
        return "No Content";
    case 206:
        return "Partial Content";
    case 302:
        return "Found";
    case 304:
        return "Not Modified";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 429:
        return "Too Many Requests";
    case 500:
        return "Internal Server Error";
    case 502:
        return "Bad Gateway";
    case 503:
        return "Service Unavailable";
    default:
        return "Scripted";
    }
}

QByteArray Chunk(const QByteArray& bytes)
{
    return QByteArray::number(bytes.size(), 16) + "\r\n" + bytes + "\r\n";
}

/// Two chunks, so that a client that reads only the first is found out.
QByteArray Chunks(const QByteArray& body)
{
    const int half = body.size() / 2;
    QByteArray chunks;
    for (const QByteArray& part : {body.left(half), body.mid(half)}) {
        chunks += part.isEmpty() ? QByteArray() : Chunk(part);
    }
    return chunks + Chunk({});
}

} // namespace

ScriptedResponse ScriptedResponse::Status(int status, const QByteArray& body)
{
    ScriptedResponse response;
    response.m_status = status;
    response.m_body = body;
    return response;
}

ScriptedResponse ScriptedResponse::Json(const QByteArray& body, int status)
{
    return Content(body, "application/json", status);
}

ScriptedResponse ScriptedResponse::Content(const QByteArray& body, const QByteArray& contentType, int status)
{
    return Status(status, body).WithHeader("Content-Type", contentType);
}

ScriptedResponse ScriptedResponse::Redirect(const QByteArray& location, int status)
{
    return Content("<html>moved</html>", "text/html", status).WithHeader("Location", location);
}

ScriptedResponse ScriptedResponse::Raw(const QByteArray& bytes)
{
    ScriptedResponse response;
    response.m_raw = bytes;
    return response;
}

ScriptedResponse& ScriptedResponse::WithHeader(const QByteArray& name, const QByteArray& value)
{
    m_headers.emplace_back(name, value);
    return *this;
}

ScriptedResponse& ScriptedResponse::WithReason(const QByteArray& reason)
{
    m_reason = reason;
    return *this;
}

ScriptedResponse& ScriptedResponse::WithFraming(Framing framing)
{
    m_framing = framing;
    return *this;
}

ScriptedResponse& ScriptedResponse::WithDeclaredLength(qint64 length)
{
    m_declaredLength = length;
    return *this;
}

ScriptedResponse& ScriptedResponse::CutAt(CutPoint point, CutAction action)
{
    m_cutPoint = point;
    m_cutAction = action;
    return *this;
}

ScriptedResponse& ScriptedResponse::Delayed(std::chrono::milliseconds delay)
{
    m_delay = delay;
    return *this;
}

ScriptedResponse& ScriptedResponse::Dripping(int bytes, std::chrono::milliseconds interval)
{
    m_dripBytes = bytes;
    m_dripInterval = interval;
    return *this;
}

QByteArray ScriptedResponse::Wire(const QByteArray& method) const
{
    if (m_raw) {
        return *m_raw;
    }
    const QByteArray head = Head();
    const QByteArray body = method == "HEAD" ? QByteArray() : FramedBody();
    switch (m_cutPoint) {
    case CutPoint::BeforeHeaders:
        return {};
    case CutPoint::WithinHeaders:
        return head.left(head.size() / 2);
    case CutPoint::AfterHeaders:
        return head;
    case CutPoint::WithinBody:
        return head + body.left(body.size() / 2);
    case CutPoint::Nowhere:
        break;
    }
    return head + body;
}

std::optional<ScriptedResponse::CutAction> ScriptedResponse::End() const
{
    if (m_cutPoint != CutPoint::Nowhere) {
        return m_cutAction;
    }
    const bool mustClose = m_raw || m_declaredLength || m_framing == Framing::UntilClose;
    return mustClose ? std::optional(CutAction::Close) : std::nullopt;
}

QByteArray ScriptedResponse::Head() const
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(m_status) + ' ' + m_reason.value_or(ReasonOf(m_status)) + "\r\n";
    for (const auto& [name, value] : m_headers) {
        head += name + ": " + value + "\r\n";
    }
    if (m_framing == Framing::Chunked) {
        head += "Transfer-Encoding: chunked\r\n";
    } else if (m_framing == Framing::ContentLength && MayHaveBody()) {
        head += "Content-Length: " + QByteArray::number(m_declaredLength.value_or(m_body.size())) + "\r\n";
    }
    return head + "\r\n";
}

QByteArray ScriptedResponse::FramedBody() const
{
    if (!MayHaveBody()) {
        return {};
    }
    return m_framing == Framing::Chunked ? Chunks(m_body) : m_body;
}

bool ScriptedResponse::MayHaveBody() const
{
    return m_status >= 200 && m_status != 204 && m_status != 304;
}

} // namespace testsupport
