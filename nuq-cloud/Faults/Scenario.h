#pragma once

#include "FaultRelay/FaultRule.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace nuqcloud {

/// A scenario that cannot be used; the text names the file, the place and what was expected.
class ScenarioError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What shall go wrong in a session: rules and the seed of everything random in them.
struct Scenario
{
    std::uint32_t seed = 1;
    std::vector<FaultRule> rules;
};

/// Reads a scenario file:
/// {"schema":1,"seed":7,"latencyMs":20,"jitterMs":30,
///  "rules":[{"fault":"status=503","method":"GET","path":"/api","skip":1,"every":2,"times":3,"probability":0.5}]}
/// Everything but "schema" and a rule's "fault" may be left out; a member that is not known is an error.
/// @throws ScenarioError
Scenario ReadScenario(const std::string& file);

} // namespace nuqcloud
