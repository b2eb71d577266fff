#include "FamilyFiles/Geometry/SolidCheck.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <vector>

namespace familyfiles {

namespace {

/// mm³: the smallest possible cube.
constexpr double kLeastVolume = 1e-3;

std::vector<TopoDS_Shape> SolidsOf(const TopoDS_Shape& shape)
{
    std::vector<TopoDS_Shape> solids;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        solids.push_back(solid.Current());
    }
    return solids;
}

bool HasLooseFaces(const TopoDS_Shape& shape)
{
    return TopExp_Explorer(shape, TopAbs_FACE, TopAbs_SOLID).More();
}

bool IsClosed(const TopoDS_Shape& shape)
{
    for (TopExp_Explorer shell(shape, TopAbs_SHELL); shell.More(); shell.Next()) {
        if (!BRep_Tool::IsClosed(shell.Current())) {
            return false;
        }
    }
    return true;
}

TopoDS_Shape Gathered(const std::vector<TopoDS_Shape>& solids)
{
    if (solids.size() == 1) {
        return solids.front();
    }
    const BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& solid : solids) {
        builder.Add(compound, solid);
    }
    return compound;
}

double VolumeOf(const TopoDS_Shape& shape)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties);
    return properties.Mass();
}

/// Each solid is looked at: a solid inside out must not hide behind a larger one.
double CheckedVolume(const std::vector<TopoDS_Shape>& solids)
{
    double sum = 0;
    for (const TopoDS_Shape& solid : solids) {
        const double volume = VolumeOf(solid);
        if (!(volume > kLeastVolume)) {
            throw GeometryFailure("geometry.volume", "The solid has no positive volume", "实体体积不为正");
        }
        sum += volume;
    }
    return sum;
}

void CheckCount(std::size_t count, std::size_t wanted)
{
    if (count == 0) {
        throw GeometryFailure("geometry.empty", "Nothing is left of the shape", "形状为空");
    }
    if (count != wanted) {
        throw GeometryFailure("geometry.solid-count",
            "The shape consists of " + std::to_string(count) + " solids instead of " + std::to_string(wanted),
            "形状由 " + std::to_string(count) + " 个实体组成，应为 " + std::to_string(wanted) + " 个");
    }
}

} // namespace

bool IsSound(const TopoDS_Shape& shape)
{
    return !HasLooseFaces(shape) && IsClosed(shape) && BRepCheck_Analyzer(shape).IsValid();
}

std::size_t CountSolids(const TopoDS_Shape& shape)
{
    return shape.IsNull() ? 0 : SolidsOf(shape).size();
}

CheckedShape CheckSolid(const TopoDS_Shape& shape, std::size_t solidCount)
{
    if (shape.IsNull()) {
        throw GeometryFailure("geometry.empty", "Nothing is left of the shape", "形状为空");
    }
    const std::vector<TopoDS_Shape> solids = SolidsOf(shape);
    CheckCount(solids.size(), solidCount);
    if (HasLooseFaces(shape) || !IsClosed(shape)) {
        throw GeometryFailure("geometry.invalid", "The shape is not closed", "形状不封闭");
    }
    CheckedShape checked{Gathered(solids), 0};
    if (!BRepCheck_Analyzer(checked.shape).IsValid()) {
        throw GeometryFailure("geometry.invalid", "The shape is not valid", "形状无效");
    }
    checked.volume = CheckedVolume(solids);
    return checked;
}

} // namespace familyfiles
