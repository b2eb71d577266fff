#pragma once

#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/Profile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace familyfiles {

/// A block; corner is its smallest local corner.
struct BlockShape
{
    Frame place;
    Point3 corner;
    Point3 size;
};

/// A cylinder or a sector of one (angle degrees from U), beginning at the frame.
struct CylinderShape
{
    Frame place;
    double radius = 0;
    double length = 0;
    double angle = 360;
};

/// A truncated or pointed cone, beginning at the frame.
struct ConeShape
{
    Frame place;
    double radius = 0;
    double endRadius = 0;
    double length = 0;
};

/// A ball.
struct SphereShape
{
    Point3 centre;
    double radius = 0;
};

/// Half an ellipsoid of revolution on the frame's plane.
struct DomeShape
{
    Frame place;
    double radius = 0;
    double depth = 0;
};

/// A ring around the frame's W, or a part of one from U.
struct TorusShape
{
    Frame place;
    double radius = 0;
    double sectionRadius = 0;
    double angle = 360;
};

/// A profile moved along W.
struct PrismShape
{
    Frame place;
    Profile section;
    double length = 0;
};

/// A profile turned about the frame's W; its U is the distance from the axis, its V lies along W.
struct RevolvedShape
{
    Frame place;
    Profile section;
    double angle = 360;
};

/// A line or a circular arc in space.
struct PathSegment
{
    Point3 from;
    Point3 to;
    bool isArc = false;
    Point3 via; ///< of an arc
};

/// A profile moved along a path; the frame stands at its beginning.
struct SweptShape
{
    Frame place;
    Profile section;
    std::vector<PathSegment> path;
    bool hasSharpCorners = false; ///< some segments meet at an angle: mitred
};

/// A section of a loft.
struct LoftSection
{
    Frame place;
    Profile section;
};

/// A skin over sections, closed at both ends.
struct LoftShape
{
    std::vector<LoftSection> sections;
    bool isRuled = false;
};

/// How shapes are joined.
enum class BooleanKind : std::uint8_t
{
    Fuse,
    Cut,
    Common
};

/// Joins earlier steps. A fuse has all its steps in arguments; a cut and a common take tools to the one in arguments.
struct BooleanStep
{
    BooleanKind kind = BooleanKind::Fuse;
    std::vector<std::size_t> arguments;
    std::vector<std::size_t> tools;
};

/// Chooses edges; an edge must satisfy all that is set.
struct EdgeFilter
{
    bool wantsDirection = false;
    Point3 direction; ///< straight edges parallel to it
    bool wantsLines = false;
    bool wantsCircles = false;
    bool wantsPlane = false;
    Point3 planeNormal;
    double planeOffset = 0; ///< edges wholly in this plane
    bool wantsBox = false;
    Point3 boxLow;
    Point3 boxHigh; ///< edges wholly in this box
};

/// Rounds or bevels the edges of earlier steps that one of the filters chooses; all of them without a filter.
struct EdgeStep
{
    bool isFillet = true;
    std::vector<std::size_t> of;
    double size = 0;
    std::vector<EdgeFilter> filters;
};

/// What an elementary motion does.
enum class MotionKind : std::uint8_t
{
    Move,   ///< by direction
    Rotate, ///< about the axis through centre along direction by amount degrees
    Mirror, ///< at the plane through centre across direction
    Scale   ///< by amount from the world's origin
};

/// An elementary motion; direction has unit length except for Move.
struct Motion
{
    MotionKind kind = MotionKind::Move;
    Point3 centre;
    Point3 direction;
    double amount = 0;
};

/// Copies of earlier steps, each moved by its motions one after the other; none means where it stands.
struct CopyStep
{
    std::vector<std::size_t> of;
    std::vector<std::vector<Motion>> copies;
};

/// One step with all its numbers known. It refers to earlier steps by their index; where several are given for one,
/// they stand side by side.
struct PlanStep
{
    std::string name;     ///< for messages
    std::string material; ///< name or "#rrggbb" of the faces that it makes; empty: the plan's
    std::variant<BlockShape, CylinderShape, ConeShape, SphereShape, DomeShape, TorusShape, PrismShape, RevolvedShape,
        SweptShape, LoftShape, BooleanStep, EdgeStep, CopyStep>
        shape;
};

/// A centre line of the drawings: straight, or a circle across direction.
struct CentreLine
{
    bool isCircle = false;
    Point3 from; ///< or the circle's centre
    Point3 to;
    Point3 direction;
    double radius = 0;
};

/// A recipe with all numbers known: what a solid is made from. Nothing in it is out of bounds, infinite or
/// not-a-number, so that the geometry kernel can take it as it is.
struct ShapePlan
{
    std::vector<PlanStep> steps;
    std::vector<std::size_t> result;
    std::size_t solidCount = 1;
    std::string material;
    Point3 camera; ///< from the component towards the viewer of its shaded picture
    std::vector<CentreLine> centreLines;
};

} // namespace familyfiles
