#pragma once

#include "tarn/INetworkCheck.h"

namespace testsupport {

/// A network check with an answer to set; counts how often it was asked.
class FakeNetworkCheck final : public tarn::INetworkCheck
{
public:
    bool IsConnected() override
    {
        ++questions;
        return connected;
    }

    bool connected = true;
    int questions = 0;
};

} // namespace testsupport
