#pragma once

#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/Profile.h"

#include <gp_Ax2.hxx>
#include <gp_Ax3.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Vec.hxx>

namespace familyfiles {

inline gp_Pnt ToPoint(const Point3& point)
{
    return {point.x, point.y, point.z};
}

inline gp_Vec ToVector(const Point3& vector)
{
    return {vector.x, vector.y, vector.z};
}

/// REQUIRES: @p direction is not zero.
inline gp_Dir ToDirection(const Point3& direction)
{
    return {direction.x, direction.y, direction.z};
}

/// The axes of @p frame: Z along W, X along U.
inline gp_Ax2 ToAxes(const Frame& frame)
{
    return {ToPoint(frame.origin), ToDirection(frame.w), ToDirection(frame.u)};
}

/// The point of a profile that lies in the plane of @p frame.
inline gp_Pnt ToPoint(const Frame& frame, const Point2& point)
{
    return ToPoint(frame.At(point.u, point.v, 0));
}

} // namespace familyfiles
