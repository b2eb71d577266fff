#pragma once

#include "FamilyFiles/Recipe/Point3.h"

namespace familyfiles {

/// A local system of axes in which a shape is made: right-handed, of unit length.
///
/// W is the direction the shape grows in. V points as far up as it can, so that the height of a profile is upright
/// wherever W is level; where W is vertical, U is the world's X.
struct Frame
{
    Point3 origin;
    Point3 u{1, 0, 0};
    Point3 v{0, 1, 0};
    Point3 w{0, 0, 1};

    /// The world's point for local coordinates.
    Point3 At(double alongU, double alongV, double alongW) const;
};

/// The frame at @p origin with W along @p axis, turned about W by @p turn degrees.
/// REQUIRES: @p axis has unit length.
Frame MakeFrame(const Point3& origin, const Point3& axis, double turn);

/// Exact at multiples of 90 degrees, so that level and upright shapes are so to the last bit.
double SineOfDegrees(double angle);

/// Exact at multiples of 90 degrees.
double CosineOfDegrees(double angle);

/// @p vector turned about the unit direction @p axis by @p angle degrees.
Point3 Turned(const Point3& vector, const Point3& axis, double angle);

} // namespace familyfiles
