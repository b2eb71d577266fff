#pragma once

#include "FamilyFiles/Drawing/TriangleMesh.h"
#include "FamilyFiles/Drawing/ViewPlane.h"

#include <cstdint>
#include <vector>

namespace familyfiles {

/// Which places of a view the component covers, on a fine grid. Tells where the component ends and the background
/// begins.
class CoverageMask
{
public:
    CoverageMask(const TriangleMesh& mesh, const ViewPlane& plane);

    /// Whether the line between two points of the view runs along the background: one side of its middle is free.
    bool IsAtBackground(const Point2& from, const Point2& to) const;

    /// Whether the component ends along the whole line between two points of the view.
    bool RunsAlongBorder(const Point2& from, const Point2& to) const;

    const Point2& Low() const { return m_low; }
    const Point2& High() const { return m_high; }

private:
    void Fill(const Point2& a, const Point2& b, const Point2& c);
    bool IsCovered(const Point2& point) const;
    Point2 InCells(const Point2& point) const;

    Point2 m_low;
    Point2 m_high;
    double m_cell = 1; ///< mm
    int m_columns = 0;
    int m_rows = 0;
    std::vector<std::uint8_t> m_cells;
};

} // namespace familyfiles
