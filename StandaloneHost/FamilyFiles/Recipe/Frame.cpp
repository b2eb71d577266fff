#include "FamilyFiles/Recipe/Frame.h"

namespace familyfiles {

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;

/// Below this the axis counts as vertical: about a hundredth of a second of arc.
constexpr double kVertical = 1e-7;

} // namespace

Point3 Frame::At(double alongU, double alongV, double alongW) const
{
    return origin + u * alongU + v * alongV + w * alongW;
}

double SineOfDegrees(double angle)
{
    const double rest = std::remainder(angle, 360.0);
    if (std::fmod(rest, 90.0) == 0.0) {
        return rest == 90.0 ? 1.0 : (rest == -90.0 ? -1.0 : 0.0);
    }
    return std::sin(rest * kRadiansPerDegree);
}

double CosineOfDegrees(double angle)
{
    const double rest = std::abs(std::remainder(angle, 360.0));
    if (std::fmod(rest, 90.0) == 0.0) {
        return rest == 0.0 ? 1.0 : (rest == 90.0 ? 0.0 : -1.0);
    }
    return std::cos(rest * kRadiansPerDegree);
}

Point3 Turned(const Point3& vector, const Point3& axis, double angle)
{
    const double sine = SineOfDegrees(angle);
    const double cosine = CosineOfDegrees(angle);
    return vector * cosine + Cross(axis, vector) * sine + axis * (Dot(axis, vector) * (1 - cosine));
}

Frame MakeFrame(const Point3& origin, const Point3& axis, double turn)
{
    const Point3 up{0, 0, 1};
    const Point3 level = up - axis * Dot(up, axis);
    Frame frame;
    frame.origin = origin;
    frame.w = axis;
    if (Length(level) < kVertical) {
        frame.u = {1, 0, 0};
        frame.v = Cross(axis, frame.u);
    } else {
        frame.v = Normalised(level);
        frame.u = Cross(frame.v, axis);
    }
    if (turn != 0) {
        frame.u = Turned(frame.u, axis, turn);
        frame.v = Turned(frame.v, axis, turn);
    }
    return frame;
}

} // namespace familyfiles
