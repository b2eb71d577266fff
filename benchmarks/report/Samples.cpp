#include "Samples.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

namespace bench {

namespace {

std::ifstream Open(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    return file;
}

std::vector<std::string> SplitName(const std::string& name)
{
    std::vector<std::string> parts;
    std::istringstream stream(name);
    for (std::string part; std::getline(stream, part, '/');) {
        parts.push_back(part);
    }
    return parts;
}

double Nanoseconds(const nlohmann::json& entry, bool wall)
{
    static const std::map<std::string, double> units{{"ns", 1.0}, {"us", 1e3}, {"ms", 1e6}, {"s", 1e9}};
    return entry.at(wall ? "real_time" : "cpu_time").get<double>() * units.at(entry.at("time_unit").get<std::string>());
}

} // namespace

double Samples::Min() const
{
    return *std::min_element(m_values.begin(), m_values.end());
}

double Samples::Median() const
{
    std::vector<double> sorted(m_values);
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

void ReadTimes(const std::string& path, Figures& figures)
{
    std::ifstream file = Open(path);
    const nlohmann::json document = nlohmann::json::parse(file);
    for (const auto& entry : document.at("benchmarks")) {
        const std::vector<std::string> name = SplitName(entry.at("name"));
        if (entry.value("run_type", "") == "iteration" && name.size() >= 3) {
            const bool wall = name.back() == "real_time" || name.back() == "manual_time";
            figures[name[0]][name[1]][std::stoi(name[2])].Add(Nanoseconds(entry, wall));
        }
    }
}

void ReadCounts(const std::string& path, Figures& figures)
{
    std::ifstream file = Open(path);
    std::string subject;
    std::string by;
    int size = 0;
    double count = 0.0;
    while (file >> subject >> by >> size >> count) {
        figures[subject][by][size].Add(count);
    }
}

} // namespace bench
