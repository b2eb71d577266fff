#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <chrono>
#include <optional>
#include <utility>
#include <vector>

namespace testsupport {

/**
 * What a LoopbackServer answers: a proper response, or one with a fault.
 *
 *     ScriptedResponse::Json("{}")
 *     ScriptedResponse::Json("{}", 500).WithHeader("Retry-After", "1")
 *     ScriptedResponse::Json(body).CutAt(CutPoint::WithinBody)                    // the connection closes halfway
 *     ScriptedResponse::Json(body).CutAt(CutPoint::AfterHeaders, CutAction::Stall) // the body never comes
 */
class ScriptedResponse
{
public:
    /// How the client is told where the body ends.
    enum class Framing
    {
        ContentLength,
        Chunked,
        UntilClose,
    };
    /// Where the answer breaks off. Qt sends a request again when its connection closes before the headers, so such an
    /// answer belongs into On(), not Enqueue(). A chunked body that is cut off does not always end in an error there:
    /// it may pass for whole, or the reply never ends.
    enum class CutPoint
    {
        Nowhere,
        BeforeHeaders,
        WithinHeaders,
        AfterHeaders,
        WithinBody,
    };
    /// What happens where it breaks off.
    enum class CutAction
    {
        Close,
        Stall,
    };
    using Headers = std::vector<std::pair<QByteArray, QByteArray>>;

    /// A response with a body and no content type.
    static ScriptedResponse Status(int status, const QByteArray& body = {});
    static ScriptedResponse Json(const QByteArray& body, int status = 200);
    /// A response with a content type of its own.
    static ScriptedResponse Content(const QByteArray& body, const QByteArray& contentType, int status = 200);
    static ScriptedResponse Redirect(const QByteArray& location, int status = 302);
    /// Exactly these bytes instead of a response, then the connection closes.
    static ScriptedResponse Raw(const QByteArray& bytes);

    ScriptedResponse& WithHeader(const QByteArray& name, const QByteArray& value);
    /// Replaces the standard reason phrase.
    ScriptedResponse& WithReason(const QByteArray& reason);
    ScriptedResponse& WithFraming(Framing framing);
    /// Names this Content-Length whatever the body has; the connection closes after the body.
    ScriptedResponse& WithDeclaredLength(qint64 length);
    ScriptedResponse& CutAt(CutPoint point, CutAction action = CutAction::Close);
    /// Waits before the first byte.
    ScriptedResponse& Delayed(std::chrono::milliseconds delay);
    /// Sends a few bytes at a time.
    ScriptedResponse& Dripping(int bytes, std::chrono::milliseconds interval);

    /**
     * The whole text that goes over the wire, fault included.
     *
     * @param method the request's method; "HEAD" leaves the body out.
     */
    QByteArray Wire(const QByteArray& method) const;
    /// What happens after the last byte: nothing further (Stall), Close, or not set: the connection is kept.
    std::optional<CutAction> End() const;

    std::chrono::milliseconds Delay() const { return m_delay; }
    /// 0: all at once.
    int DripBytes() const { return m_dripBytes; }
    std::chrono::milliseconds DripInterval() const { return m_dripInterval; }

private:
    QByteArray Head() const;
    QByteArray FramedBody() const;
    bool MayHaveBody() const;

    int m_status = 200;
    std::optional<QByteArray> m_reason;
    Headers m_headers;
    QByteArray m_body;
    Framing m_framing = Framing::ContentLength;
    std::optional<qint64> m_declaredLength;
    CutPoint m_cutPoint = CutPoint::Nowhere;
    CutAction m_cutAction = CutAction::Close;
    std::chrono::milliseconds m_delay{0};
    int m_dripBytes = 0;
    std::chrono::milliseconds m_dripInterval{0};
    std::optional<QByteArray> m_raw;
};

} // namespace testsupport
