#include "FaultRelay/Damage.h"

#include <algorithm>

namespace nuqcloud {
namespace {

constexpr qint64 kHalfOfUnknown = 16;

qint64 Half(const BodyFraming& body)
{
    return body.PromisedLength() < 0 ? kHalfOfUnknown : body.PromisedLength() / 2;
}

void SetLength(HttpHead& head, qint64 length)
{
    head.Remove("Content-Length");
    head.Add("Content-Length", QByteArray::number(std::max<qint64>(length, 0)));
}

/// Changes the head; true when the connection has to end with the reply, since its framing is now a lie.
bool Falsify(const Fault& fault, const BodyFraming& body, HttpHead& head)
{
    if (fault.Is("length-too-long")) {
        SetLength(head, std::max<qint64>(body.PromisedLength(), 0) + fault.number);
    } else if (fault.Is("length-too-short")) {
        SetLength(head, std::max<qint64>(body.PromisedLength(), 0) - fault.number);
    } else if (fault.Is("no-length")) {
        head.Remove("Content-Length");
        head.Remove("Keep-Alive");
        head.Add("Connection", "close");
    } else if (fault.Is("double-length")) {
        head.Add("Content-Length", QByteArray::number(std::max<qint64>(body.PromisedLength(), 0) + 7));
    } else if (fault.Is("bad-status")) {
        head.SetFirstLine("HTTP/1.1 two hundred OK");
    } else if (fault.Is("broken-chunk")) {
        head.Remove("Content-Length");
        head.Add("Transfer-Encoding", "chunked");
    } else {
        return false;
    }
    return true;
}

void CutBody(Damage& damage, const Fault& fault, const BodyFraming& body, AfterReply after)
{
    damage.cutAt = damage.head.size() + (fault.number < 0 ? Half(body) : fault.number);
    damage.after = after;
}

void Cut(Damage& damage, const Fault& fault, const BodyFraming& body)
{
    const auto closeAt = [&damage](qint64 position) {
        damage.cutAt = position;
        damage.after = AfterReply::Close;
    };
    if (fault.Is("stall-before-headers")) {
        damage.cutAt = 0;
        damage.after = AfterReply::Stall;
    } else if (fault.Is("close-before-headers")) {
        closeAt(0);
    } else if (fault.Is("close-in-headers")) {
        closeAt(damage.head.size() / 2);
    } else if (fault.Is("close-after-headers")) {
        closeAt(damage.head.size());
    } else if (fault.Is("no-status-line")) {
        damage.head = "This is not HTTP.\r\n\r\n";
        closeAt(damage.head.size());
    } else if (fault.Is("stall")) {
        CutBody(damage, fault, body, AfterReply::Stall);
    } else if (fault.Is("truncate")) {
        CutBody(damage, fault, body, AfterReply::Close);
    } else if (fault.Is("reset")) {
        CutBody(damage, fault, body, AfterReply::Reset);
    }
}

void SlowDown(Damage& damage, const Fault& fault, FaultPlan& plan)
{
    if (fault.Is("delay")) {
        damage.delayMilliseconds += fault.number;
    } else if (fault.Is("jitter")) {
        damage.delayMilliseconds += plan.Random(fault.number);
    } else if (fault.Is("drip")) {
        damage.bytesPerSecond = fault.number;
    }
}

} // namespace

Damage Damage::Decide(const std::vector<Fault>& faults, const HttpHead& head, const BodyFraming& body, FaultPlan& plan)
{
    Damage damage;
    damage.after = head.Value("Connection").toLower() == "close" ? AfterReply::Close : AfterReply::Keep;
    HttpHead changed = head;
    for (const Fault& fault : faults) {
        SlowDown(damage, fault, plan);
        if (Falsify(fault, body, changed)) {
            damage.after = AfterReply::Close;
        }
    }
    damage.head = changed.ToBytes();
    if (FindFault(faults, "broken-chunk") != nullptr) {
        damage.head += "no-length\r\n";
    }
    for (const Fault& fault : faults) {
        Cut(damage, fault, body);
    }
    return damage;
}

} // namespace nuqcloud
