#pragma once

#include "FaultRelay/BodyFraming.h"
#include "FaultRelay/Fault.h"
#include "FaultRelay/FaultPlan.h"
#include "FaultRelay/HttpHead.h"

#include <QByteArray>
#include <vector>

namespace nuqcloud {

/// What becomes of the connection when the damaged reply has been sent as far as it goes.
enum class AfterReply
{
    Keep,
    Close,
    Reset,
    Stall
};

/// How one reply is damaged on its way: decided when its head is known, carried out while its bytes pass.
struct Damage
{
    QByteArray head;              ///< as it is sent
    qint64 delayMilliseconds = 0; ///< before the first byte
    qint64 bytesPerSecond = 0;    ///< 0 is full speed
    qint64 cutAt = -1;            ///< no byte from this one on is sent; -1 sends all
    AfterReply after = AfterReply::Keep;

    /// @param plan gives the random part of a delay
    static Damage Decide(
        const std::vector<Fault>& faults, const HttpHead& head, const BodyFraming& body, FaultPlan& plan);
};

} // namespace nuqcloud
