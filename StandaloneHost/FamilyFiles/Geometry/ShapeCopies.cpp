#include "FamilyFiles/Geometry/ShapeCopies.h"

#include "FamilyFiles/Geometry/OcctPoints.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <TopLoc_Location.hxx>
#include <gp_Trsf.hxx>

namespace familyfiles {

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;

gp_Trsf ToTransformation(const Motion& motion)
{
    gp_Trsf result;
    switch (motion.kind) {
    case MotionKind::Move:
        result.SetTranslation(ToVector(motion.direction));
        break;
    case MotionKind::Rotate:
        result.SetRotation(
            gp_Ax1(ToPoint(motion.centre), ToDirection(motion.direction)), motion.amount * kRadiansPerDegree);
        break;
    case MotionKind::Mirror:
        result.SetMirror(gp_Ax2(ToPoint(motion.centre), ToDirection(motion.direction)));
        break;
    case MotionKind::Scale:
        result.SetScale(ToPoint(motion.centre), motion.amount);
        break;
    }
    return result;
}

gp_Trsf ToTransformation(const std::vector<Motion>& motions)
{
    gp_Trsf result;
    for (const Motion& motion : motions) {
        result.PreMultiply(ToTransformation(motion));
    }
    return result;
}

TopoDS_Shape Moved(const TopoDS_Shape& shape, const gp_Trsf& transformation, FaceMaterials& materials)
{
    const bool isRigid = !transformation.IsNegative() && transformation.ScaleFactor() == 1.0;
    if (isRigid) {
        return shape.Moved(TopLoc_Location(transformation));
    }
    BRepBuilderAPI_Transform operation(shape, transformation);
    if (materials.IsNeeded()) {
        materials.Follow({shape}, operation);
    }
    return operation.Shape();
}

} // namespace

ShapeBody MakeCopies(const CopyStep& step, const ShapeBody& body, FaceMaterials& materials)
{
    ShapeBody copies;
    copies.reserve(body.size() * step.copies.size());
    for (const std::vector<Motion>& motions : step.copies) {
        const gp_Trsf transformation = ToTransformation(motions);
        for (const TopoDS_Shape& shape : body) {
            copies.push_back(motions.empty() ? shape : Moved(shape, transformation, materials));
        }
    }
    return copies;
}

} // namespace familyfiles
