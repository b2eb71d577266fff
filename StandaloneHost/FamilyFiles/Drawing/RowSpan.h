#pragma once

#include <algorithm>
#include <cmath>

namespace familyfiles {

/// The cells of one row of a grid that lie in a triangle: found from where its edges cross the row, so that long thin
/// triangles do not cost what the box around them would.
class RowSpan
{
public:
    /// @param columns how many cells a row has
    explicit RowSpan(int columns) : m_last(columns - 1) {}

    /// Keeps the cells whose centres, at @p y, are not on the right of the line from (@p x0, @p y0) to (@p x1, @p y1)
    /// seen in its direction, y upwards; or not on its left with @p isTurned.
    void Cut(double x0, double y0, double x1, double y1, double y, bool isTurned)
    {
        // Side of a centre x: slope * x + rest, which must not be negative.
        const double sign = isTurned ? -1 : 1;
        const double slope = sign * (y0 - y1);
        const double rest = sign * ((x1 - x0) * (y - y0) + (y1 - y0) * x0);
        if (slope == 0) {
            m_last = rest < 0 ? -1 : m_last;
        } else if (slope > 0) {
            m_first = std::max(m_first, Bounded(std::ceil(-rest / slope - 0.5)));
        } else {
            m_last = std::min(m_last, Bounded(std::floor(-rest / slope - 0.5)));
        }
    }

    int First() const { return m_first; }
    int Last() const { return m_last; }

private:
    static int Bounded(double cell) { return static_cast<int>(std::clamp(cell, -1e6, 1e6)); }

    int m_first = 0;
    int m_last;
};

} // namespace familyfiles
