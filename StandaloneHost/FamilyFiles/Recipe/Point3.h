#pragma once

#include <cmath>

namespace familyfiles {

/// A point or a direction in space; mm where it is a point. World axes: X to the right, Y away from the viewer of the
/// elevation, Z up.
struct Point3
{
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Point3 operator+(const Point3& a, const Point3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Point3 operator-(const Point3& a, const Point3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Point3 operator*(const Point3& a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

inline double Dot(const Point3& a, const Point3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Point3 Cross(const Point3& a, const Point3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double Length(const Point3& a)
{
    return std::sqrt(Dot(a, a));
}

/// REQUIRES: @p a is not zero.
inline Point3 Normalised(const Point3& a)
{
    return a * (1 / Length(a));
}

} // namespace familyfiles
