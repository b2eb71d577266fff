#include "Faults/Scenario.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>

namespace nuqcloud {
namespace {

using Json = nlohmann::json;

constexpr std::int64_t kLargest = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t kTenMinutes = 600000;

/// Reads members of one object and complains by its place.
class Reader
{
public:
    Reader(const Json& object, std::string place) : m_object(object), m_place(std::move(place))
    {
        if (!m_object.is_object()) {
            throw ScenarioError(m_place + " is not an object.");
        }
    }

    void AllowOnly(std::initializer_list<const char*> names) const
    {
        for (const auto& member : m_object.items()) {
            const auto isThis = [&](const char* name) { return member.key() == name; };
            if (std::none_of(names.begin(), names.end(), isThis)) {
                throw ScenarioError(m_place + " has a member \"" + member.key() + "\" that is not known.");
            }
        }
    }

    std::int64_t Integer(const char* name, std::int64_t smallest, std::int64_t largest, std::int64_t absent) const
    {
        const auto it = m_object.find(name);
        if (it == m_object.end()) {
            return absent;
        }
        if (!it->is_number_integer() || *it < smallest || *it > largest) {
            throw Expected(name, "a whole number from " + std::to_string(smallest) + " to " + std::to_string(largest));
        }
        return it->get<std::int64_t>();
    }

    double Probability(const char* name) const
    {
        const auto it = m_object.find(name);
        if (it == m_object.end()) {
            return 1.0;
        }
        if (!it->is_number() || *it < 0.0 || *it > 1.0) {
            throw Expected(name, "a number from 0 to 1");
        }
        return it->get<double>();
    }

    std::string Text(const char* name, const std::string& absent) const
    {
        const auto it = m_object.find(name);
        if (it == m_object.end()) {
            return absent;
        }
        if (!it->is_string()) {
            throw Expected(name, "a text");
        }
        return it->get<std::string>();
    }

    ScenarioError Expected(const char* name, const std::string& what) const
    {
        return ScenarioError(m_place + ": \"" + name + "\" is not " + what + '.');
    }

private:
    const Json& m_object;
    const std::string m_place;
};

Json ReadDocument(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw ScenarioError("Cannot read the scenario \"" + file + "\".");
    }
    try {
        return Json::parse(stream);
    } catch (const Json::parse_error& error) {
        throw ScenarioError("The scenario \"" + file + "\" is not JSON: byte " + std::to_string(error.byte) + '.');
    }
}

std::vector<Fault> ReadFaults(const Reader& reader)
{
    std::vector<Fault> faults;
    try {
        faults = ParseFaults(reader.Text("fault", ""));
    } catch (const FaultSyntaxError& error) {
        throw reader.Expected("fault", std::string("usable: ") + error.what());
    }
    if (faults.empty()) {
        throw reader.Expected("fault", "a fault such as \"status=503\"");
    }
    return faults;
}

FaultRule ReadRule(const Json& object, const std::string& place)
{
    const Reader reader(object, place);
    reader.AllowOnly({"fault", "method", "path", "skip", "every", "times", "probability"});
    FaultRule rule;
    rule.faults = ReadFaults(reader);
    rule.method = reader.Text("method", "");
    rule.path = reader.Text("path", "/");
    rule.skip = static_cast<std::uint32_t>(reader.Integer("skip", 0, kLargest, 0));
    rule.every = static_cast<std::uint32_t>(reader.Integer("every", 1, kLargest, 1));
    rule.times = static_cast<std::uint32_t>(reader.Integer("times", 0, kLargest, 0));
    rule.probability = reader.Probability("probability");
    return rule;
}

void AddLatency(const Reader& reader, Scenario& scenario)
{
    const std::int64_t latency = reader.Integer("latencyMs", 0, kTenMinutes, 0);
    const std::int64_t jitter = reader.Integer("jitterMs", 0, kTenMinutes, 0);
    if (latency > 0 || jitter > 0) {
        scenario.rules.push_back(
            ParseFaultRule("delay=" + std::to_string(latency) + ",jitter=" + std::to_string(jitter)));
    }
}

} // namespace

Scenario ReadScenario(const std::string& file)
{
    const Json document = ReadDocument(file);
    const std::string place = "The scenario \"" + file + '"';
    const Reader reader(document, place);
    reader.AllowOnly({"schema", "seed", "latencyMs", "jitterMs", "rules"});
    if (reader.Integer("schema", 1, 1, 0) != 1) {
        throw reader.Expected("schema", "1");
    }
    Scenario scenario;
    scenario.seed = static_cast<std::uint32_t>(reader.Integer("seed", 0, kLargest, 1));
    AddLatency(reader, scenario);
    const Json rules = document.value("rules", Json::array());
    if (!rules.is_array()) {
        throw reader.Expected("rules", "an array");
    }
    for (std::size_t i = 0; i < rules.size(); ++i) {
        scenario.rules.push_back(ReadRule(rules[i], place + ", rule " + std::to_string(i + 1)));
    }
    return scenario;
}

} // namespace nuqcloud
