#include "FamilyFiles/Geometry/ShapeJoining.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBndLib.hxx>
#include <BRep_Builder.hxx>
#include <Bnd_Box.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <memory>

namespace familyfiles {

namespace {

std::unique_ptr<BRepAlgoAPI_BooleanOperation> MakeOperation(BooleanKind kind)
{
    switch (kind) {
    case BooleanKind::Cut:
        return std::make_unique<BRepAlgoAPI_Cut>();
    case BooleanKind::Common:
        return std::make_unique<BRepAlgoAPI_Common>();
    case BooleanKind::Fuse:
        break;
    }
    return std::make_unique<BRepAlgoAPI_Fuse>();
}

TopTools_ListOfShape ToList(ShapeBody::const_iterator begin, ShapeBody::const_iterator end)
{
    TopTools_ListOfShape list;
    for (auto shape = begin; shape != end; ++shape) {
        list.Append(*shape);
    }
    return list;
}

void Run(BRepAlgoAPI_BooleanOperation& operation, FaceMaterials& materials, BuildBudget& budget)
{
    operation.SetToFillHistory(materials.IsNeeded());
    operation.SetRunParallel(false);
    operation.Build(budget.Start());
    budget.Check();
    if (!operation.IsDone() || operation.HasErrors()) {
        throw GeometryFailure("geometry.failed", "Shapes could not be joined", "形状无法进行布尔运算");
    }
}

TopoDS_Shape SideBySide(const ShapeBody& body)
{
    const BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : body) {
        builder.Add(compound, shape);
    }
    return compound;
}

bool MayTouch(const ShapeBody& body)
{
    std::vector<Bnd_Box> boxes;
    for (const TopoDS_Shape& shape : body) {
        Bnd_Box box;
        BRepBndLib::Add(shape, box, false);
        for (const Bnd_Box& other : boxes) {
            if (!box.IsOut(other)) {
                return true;
            }
        }
        boxes.push_back(box);
    }
    return false;
}

} // namespace

TopoDS_Shape Join(
    BooleanKind kind, const ShapeBody& arguments, const ShapeBody& tools, FaceMaterials& materials, BuildBudget& budget)
{
    const auto operation = MakeOperation(kind);
    operation->SetArguments(ToList(arguments.begin(), arguments.end()));
    operation->SetTools(ToList(tools.begin(), tools.end()));
    Run(*operation, materials, budget);
    if (materials.IsNeeded()) {
        materials.Follow(arguments, *operation);
        materials.Follow(tools, *operation);
    }
    return operation->Shape();
}

TopoDS_Shape AsOneShape(const ShapeBody& body, FaceMaterials& materials, BuildBudget& budget)
{
    if (body.size() == 1) {
        return body.front();
    }
    if (!MayTouch(body)) {
        return SideBySide(body);
    }
    return Join(BooleanKind::Fuse, {body.front()}, {body.begin() + 1, body.end()}, materials, budget);
}

} // namespace familyfiles
