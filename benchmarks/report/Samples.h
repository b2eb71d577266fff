#pragma once

#include <map>
#include <string>
#include <vector>

namespace bench {

/// The repeated figures of one benchmark.
class Samples
{
public:
    void Add(double value) { m_values.push_back(value); }
    double Min() const;
    double Median() const;

private:
    std::vector<double> m_values;
};

/// All figures of one run: subject ("categories"), by whom ("handler"), size.
using Figures = std::map<std::string, std::map<std::string, std::map<int, Samples>>>;

/// Reads Google Benchmark's JSON; names are SUBJECT/BY/SIZE, with an optional /real_time behind.
/// @param figures receives CPU time in nanoseconds, or wall time where a benchmark measures that
/// @throws std::exception when the file cannot be read
void ReadTimes(const std::string& path, Figures& figures);

/// Reads instruction counts: lines of SUBJECT BY SIZE COUNT.
void ReadCounts(const std::string& path, Figures& figures);

} // namespace bench
