#pragma once

#include "FaultRelay/FaultRule.h"

#include <cstdint>
#include <mutex>
#include <random>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// Decides request by request which faults are made. The same rules, seed and order of requests give the same
/// decisions. Safe for many threads.
class FaultPlan
{
public:
    explicit FaultPlan(std::vector<FaultRule> rules = {}, std::uint32_t seed = 1);

    void Add(FaultRule rule);

    /// Counts the request and returns the faults of all rules that hit it, in the order of the rules.
    /// @param path percent-encoded, without query
    std::vector<Fault> Choose(std::string_view method, std::string_view path);

    /// A whole number from 0 to the limit, by the seed.
    std::int64_t Random(std::int64_t limit);

private:
    struct CountedRule
    {
        FaultRule rule;
        std::mt19937 random;
        std::uint64_t seen = 0;
        std::uint64_t hit = 0;
    };

    void AddLocked(FaultRule rule);
    static bool Hits(CountedRule& counted);

    std::mutex m_mutex;
    const std::uint32_t m_seed;
    std::mt19937 m_random;
    std::vector<CountedRule> m_rules;
};

} // namespace nuqcloud
