#pragma once

#include "support/ReceivedRequest.h"

#include <optional>

namespace testsupport {

/// Cuts the bytes of a connection into requests, however they arrive.
class RequestReader
{
public:
    void Feed(const QByteArray& bytes) { m_buffer += bytes; }

    /// The next request that is complete, if any.
    std::optional<ReceivedRequest> Next();

private:
    QByteArray m_buffer;
};

} // namespace testsupport
