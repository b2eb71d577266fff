#include "FamilyFiles/Drawing/OutlineClosing.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace familyfiles {

namespace {

/// Drawings have a handful of open ends; with more than this there is something else amiss than gaps.
constexpr std::size_t kMostEnds = 400;

double Distance(const Point2& a, const Point2& b)
{
    return std::hypot(a.u - b.u, a.v - b.v);
}

/// Ends that no other line shares.
std::vector<Point2> OpenEnds(const std::vector<std::vector<Point2>>& outline)
{
    std::map<std::pair<double, double>, int> counts;
    const auto count = [&counts](const Point2& end) -> int& { return counts[{end.u, end.v}]; };
    for (const std::vector<Point2>& line : outline) {
        ++count(line.front());
        ++count(line.back());
    }
    std::vector<Point2> open;
    for (const std::vector<Point2>& line : outline) {
        for (const Point2& end : {line.front(), line.back()}) {
            if (count(end) == 1) {
                open.push_back(end);
            }
        }
    }
    return open;
}

/// A possible piece by the numbers of its ends.
struct Candidate
{
    std::size_t from = 0;
    std::size_t to = 0;
    double length = 0;
};

std::vector<Candidate> CandidatesOf(const std::vector<Point2>& ends, double reach)
{
    std::vector<Candidate> candidates;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        for (std::size_t j = i + 1; j < ends.size(); ++j) {
            const double length = Distance(ends[i], ends[j]);
            if (length <= reach) {
                candidates.push_back({i, j, length});
            }
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
        [](const Candidate& a, const Candidate& b) { return a.length < b.length; });
    return candidates;
}

} // namespace

std::vector<LineSegment> GapsOf(const std::vector<std::vector<Point2>>& outline, const CoverageMask& mask, double reach)
{
    const std::vector<Point2> ends = OpenEnds(outline);
    if (ends.size() > kMostEnds) {
        return {};
    }
    std::vector<bool> isTaken(ends.size(), false);
    std::vector<LineSegment> gaps;
    for (const Candidate& candidate : CandidatesOf(ends, reach)) {
        const bool isFree = !isTaken[candidate.from] && !isTaken[candidate.to];
        if (isFree && mask.RunsAlongBorder(ends[candidate.from], ends[candidate.to])) {
            isTaken[candidate.from] = true;
            isTaken[candidate.to] = true;
            gaps.push_back({ends[candidate.from], ends[candidate.to]});
        }
    }
    return gaps;
}

} // namespace familyfiles
