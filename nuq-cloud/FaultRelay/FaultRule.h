#pragma once

#include "FaultRelay/Fault.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// Which requests get which faults.
struct FaultRule
{
    std::vector<Fault> faults;
    std::string method;       ///< empty: every method
    std::string path = "/";   ///< beginning of the request's path
    std::uint32_t skip = 0;   ///< this many fitting requests are spared first
    std::uint32_t every = 1;  ///< of the others, each n-th is hit
    std::uint32_t times = 0;  ///< at most this often; 0 is without end
    double probability = 1.0; ///< of a request that would be hit
};

/// Reads the short form "FAULT[,FAULT..][@/PATH][#N]": the N-th request alone when "#N" is given.
/// @throws FaultSyntaxError
FaultRule ParseFaultRule(std::string_view text);

} // namespace nuqcloud
