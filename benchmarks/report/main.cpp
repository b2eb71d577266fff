// Prints Markdown tables of the figures of a run, each subject relative to its first column, with growth exponents.
// Usage: benchmark-report TIMES.json... [INSTRUCTIONS.tsv]; the figures of all files are put together
#include "Samples.h"

#include <cmath>
#include <cstdio>
#include <exception>

namespace {

using bench::Figures;
using BySize = std::map<int, bench::Samples>;

/// Who is compared with whom: the base first.
const std::vector<std::vector<std::string>> columnOrders{
    {"fromJson", "handler", "service", "naive", "simdjson", "rapidjson", "nlohmann"},
    {"marking", "naive"},
    {"by-value", "keys"},
    {"one-scan", "by-code", "walk", "shuffled", "leaf"},
    {"getters", "service"},
    {"base", "handle"},
    {"bare", "nuq-cloud", "files", "bare-decoding", "images", "curl"},
    {"load", "provider"},
    {"floor", "kernel"},
    {"read", "work-out"},
    {"shaded"},
};

std::vector<std::string> Columns(const std::map<std::string, BySize>& subject)
{
    std::vector<std::string> columns;
    for (const auto& order : columnOrders) {
        for (const auto& name : order) {
            if (subject.count(order.front()) && subject.count(name)) {
                columns.push_back(name);
            }
        }
        if (!columns.empty()) {
            break;
        }
    }
    return columns;
}

/// The slope of the logarithm between the smallest and the largest size of at least a thousand.
std::string GrowthExponent(const BySize& figures)
{
    const auto first = figures.lower_bound(1000);
    if (first == figures.end() || std::next(first) == figures.end()) {
        return "-";
    }
    const auto last = std::prev(figures.end());
    char text[32];
    std::snprintf(text, sizeof text, "%.2f",
        std::log(last->second.Min() / first->second.Min()) / std::log(double(last->first) / first->first));
    return text;
}

void PrintRow(const std::map<std::string, BySize>& subject, const std::vector<std::string>& columns, int size,
    double perUnit, int digits)
{
    const auto& base = subject.at(columns.front());
    const bool hasBase = base.count(size) != 0;
    std::printf("| %d |", size);
    for (const auto& column : columns) {
        const auto& figures = subject.at(column);
        if (!figures.count(size)) {
            std::printf(" - |");
        } else if (column == columns.front() || !hasBase) {
            std::printf(" %.*f |", digits, figures.at(size).Min() * perUnit);
        } else {
            std::printf(" %.*f (%.2f; %.2f) |", digits, figures.at(size).Min() * perUnit,
                figures.at(size).Min() / base.at(size).Min(), figures.at(size).Median() / base.at(size).Median());
        }
    }
    std::printf("\n");
}

void PrintSubject(
    const std::string& name, const std::map<std::string, BySize>& subject, const char* unit, double perUnit, int digits)
{
    const std::vector<std::string> columns = Columns(subject);
    if (columns.empty()) {
        return;
    }
    std::printf("\n**%s**, %s: least (ratio of the least to %s; ratio of the medians)\n\n| size |", name.c_str(), unit,
        columns.front().c_str());
    for (const auto& column : columns) {
        std::printf(" %s |", column.c_str());
    }
    std::printf("\n|---|");
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::printf("---|");
    }
    std::printf("\n");
    std::map<int, bool> sizes;
    for (const auto& column : columns) {
        for (const auto& figure : subject.at(column)) {
            sizes[figure.first] = true;
        }
    }
    for (const auto& size : sizes) {
        PrintRow(subject, columns, size.first, perUnit, digits);
    }
    std::printf("| growth |");
    for (const auto& column : columns) {
        std::printf(" %s |", GrowthExponent(subject.at(column)).c_str());
    }
    std::printf("\n");
}

void Print(const Figures& figures, const char* unit, double perUnit, int digits)
{
    for (const auto& subject : figures) {
        PrintSubject(subject.first, subject.second, unit, perUnit, digits);
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        Figures times;
        Figures counts;
        for (const std::string& path : std::vector<std::string>(argv + 1, argv + argc)) {
            const bool isJson = path.size() > 5 && path.compare(path.size() - 5, 5, ".json") == 0;
            isJson ? bench::ReadTimes(path, times) : bench::ReadCounts(path, counts);
        }
        std::printf("## Time\n");
        Print(times, "microseconds", 1e-3, 1);
        std::printf("\n## Instructions\n");
        Print(counts, "thousands of instructions", 1e-3, 0);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "benchmark-report: %s\n", exception.what());
        return 1;
    }
    return 0;
}
