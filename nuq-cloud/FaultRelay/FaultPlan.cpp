#include "FaultRelay/FaultPlan.h"

#include <utility>

namespace nuqcloud {
namespace {

bool Fits(const FaultRule& rule, std::string_view method, std::string_view path)
{
    return (rule.method.empty() || rule.method == method) && path.substr(0, rule.path.size()) == rule.path;
}

/// Not std::uniform_real_distribution: its numbers differ from one standard library to another.
double Fraction(std::mt19937& random)
{
    return static_cast<double>(random()) / 4294967296.0;
}

} // namespace

FaultPlan::FaultPlan(std::vector<FaultRule> rules, std::uint32_t seed) : m_seed(seed), m_random(seed)
{
    for (FaultRule& rule : rules) {
        AddLocked(std::move(rule));
    }
}

void FaultPlan::Add(FaultRule rule)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    AddLocked(std::move(rule));
}

/// Each rule draws from numbers of its own, so that adding one does not change what the others do.
void FaultPlan::AddLocked(FaultRule rule)
{
    const auto ordinal = static_cast<std::uint32_t>(m_rules.size() + 1);
    m_rules.push_back({std::move(rule), std::mt19937(m_seed * 7919U + ordinal)});
}

bool FaultPlan::Hits(CountedRule& counted)
{
    const FaultRule& rule = counted.rule;
    const std::uint64_t ordinal = counted.seen++;
    if (ordinal < rule.skip || (ordinal - rule.skip) % rule.every != 0 ||
        (rule.times != 0 && counted.hit >= rule.times)) {
        return false;
    }
    if (rule.probability < 1.0 && Fraction(counted.random) >= rule.probability) {
        return false;
    }
    ++counted.hit;
    return true;
}

std::vector<Fault> FaultPlan::Choose(std::string_view method, std::string_view path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Fault> faults;
    for (CountedRule& counted : m_rules) {
        if (Fits(counted.rule, method, path) && Hits(counted)) {
            faults.insert(faults.end(), counted.rule.faults.begin(), counted.rule.faults.end());
        }
    }
    return faults;
}

std::int64_t FaultPlan::Random(std::int64_t limit)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<std::int64_t>(Fraction(m_random) * static_cast<double>(limit + 1));
}

} // namespace nuqcloud
