// Making, drawing and shading the solids of family files beside bare calls of the library below, in the same run.
#include "FamilyFiles/Drawing/DrawingSvg.h"
#include "FamilyFiles/Drawing/ShadedPicture.h"
#include "FamilyFiles/Geometry/HiddenLines.h"
#include "FamilyFiles/Geometry/OcctKernel.h"
#include "FamilyFiles/Geometry/OcctSolid.h"
#include "FamilyFiles/Recipe/Recipe.h"
#include "geometry/BareShapes.h"
#include "support/Registration.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Copy.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <HLRAlgo_Projector.hxx>
#include <HLRBRep_PolyAlgo.hxx>
#include <HLRBRep_PolyHLRToShape.hxx>
#include <QImage>
#include <cmath>
#include <gp_Ax2.hxx>

namespace {

using bench::BareShape;
using familyfiles::OcctKernel;
using familyfiles::OcctSolid;

const OcctKernel& Kernel()
{
    static const OcctKernel kernel;
    return kernel;
}

familyfiles::Recipe RecipeOf(const BareShape& shape)
{
    familyfiles::Reason reason;
    auto recipe = familyfiles::Recipe::Parse(shape.recipe, {}, reason);
    if (!recipe) {
        std::fprintf(stderr, "%s: %s\n", shape.name.c_str(), reason.english.c_str());
        std::abort();
    }
    return std::move(*recipe);
}

familyfiles::BuildResult Built(const familyfiles::Recipe& recipe)
{
    familyfiles::Reason reason;
    return Kernel().Build(*recipe.Evaluate({}, reason), nullptr);
}

double VolumeOf(const TopoDS_Shape& shape)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties);
    return properties.Mass();
}

void RegenerateBare(benchmark::State& state, const BareShape& shape)
{
    for (auto _ : state) {
        const TopoDS_Shape made = shape.make();
        benchmark::DoNotOptimize(BRepCheck_Analyzer(made).IsValid());
        benchmark::DoNotOptimize(VolumeOf(made));
    }
}

/// From the values of the parameters to the checked solid.
void Regenerate(benchmark::State& state, const BareShape& shape)
{
    const familyfiles::Recipe recipe = RecipeOf(shape);
    const double volume = VolumeOf(shape.make());
    for (auto _ : state) {
        const familyfiles::BuildResult result = Built(recipe);
        if (result.solid == nullptr || std::abs(result.solid->Volume() - volume) > 1e-6 * volume) {
            state.SkipWithError("the recipe does not make the same solid");
            break;
        }
    }
}

/// A copy without triangles, so that each drawing begins from nothing.
TopoDS_Shape Fresh(const TopoDS_Shape& shape)
{
    return BRepBuilderAPI_Copy(shape, true, false).Shape();
}

void DrawBare(benchmark::State& state, const BareShape& shape)
{
    const TopoDS_Shape made = shape.make();
    for (auto _ : state) {
        state.PauseTiming();
        const TopoDS_Shape fresh = Fresh(made);
        state.ResumeTiming();
        Bnd_Box box;
        BRepBndLib::Add(fresh, box, false);
        const BRepMesh_IncrementalMesh mesh(fresh, std::sqrt(box.SquareExtent()) * 1e-3, false, 0.2, false);
        const Handle(HLRBRep_PolyAlgo) algorithm = new HLRBRep_PolyAlgo;
        algorithm->Load(fresh);
        algorithm->Projector(HLRAlgo_Projector(gp_Ax2(gp_Pnt(), gp_Dir(0, -1, 0), gp_Dir(1, 0, 0))));
        algorithm->Update();
        HLRBRep_PolyHLRToShape result;
        result.Update(algorithm);
        benchmark::DoNotOptimize(result.VCompound());
        benchmark::DoNotOptimize(result.OutLineVCompound());
        benchmark::DoNotOptimize(result.HCompound());
        benchmark::DoNotOptimize(result.OutLineHCompound());
    }
}

/// From the solid to the bytes of the SVG document.
void Draw(benchmark::State& state, const BareShape& shape)
{
    const familyfiles::BuildResult built = Built(RecipeOf(shape));
    const auto& own = static_cast<const OcctSolid&>(*built.solid);
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const OcctSolid fresh(Fresh(own.Shape()), own.Volume(), own.Look());
        state.ResumeTiming();
        familyfiles::Reason reason;
        const auto drawing = Kernel().Draw(fresh, familyfiles::DrawingView::Elevation, {}, reason);
        bytes = familyfiles::DrawingSvg(*drawing).size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void Shade(benchmark::State& state, const BareShape& shape, int pixels)
{
    const familyfiles::BuildResult built = Built(RecipeOf(shape));
    familyfiles::Reason reason;
    const auto mesh = Kernel().Mesh(*built.solid, reason);
    for (auto _ : state) {
        benchmark::DoNotOptimize(familyfiles::ShadedPicture(*mesh, {1, -1.2, 0.9}, pixels));
    }
}

void ReadRecipe(benchmark::State& state, const BareShape& shape)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(RecipeOf(shape));
    }
}

void WorkOut(benchmark::State& state, const BareShape& shape)
{
    const familyfiles::Recipe recipe = RecipeOf(shape);
    for (auto _ : state) {
        familyfiles::Reason reason;
        benchmark::DoNotOptimize(recipe.Evaluate({}, reason));
    }
}

const bool isRegistered = [] {
    for (const BareShape& shape : bench::BareShapes()) {
        const auto add = [&shape](const std::string& subject, const std::string& by, int size,
                             const std::function<void(benchmark::State&)>& run) {
            bench::Register(subject + '-' + shape.name + '/' + by, size, run);
        };
        add("regenerate", "floor", 1, [&shape](auto& state) { RegenerateBare(state, shape); });
        add("regenerate", "kernel", 1, [&shape](auto& state) { Regenerate(state, shape); });
        add("draw", "floor", 1, [&shape](auto& state) { DrawBare(state, shape); });
        add("draw", "kernel", 1, [&shape](auto& state) { Draw(state, shape); });
        add("recipe", "read", 1, [&shape](auto& state) { ReadRecipe(state, shape); });
        add("recipe", "work-out", 1, [&shape](auto& state) { WorkOut(state, shape); });
        for (const int pixels : {64, 128, 256, 512}) {
            add("shade", "shaded", pixels, [&shape, pixels](auto& state) { Shade(state, shape, pixels); });
        }
    }
    return true;
}();

} // namespace

int main(int argc, char** argv)
{
#ifdef NDEBUG
    benchmark::AddCustomContext("library_build", "release");
#else
    benchmark::AddCustomContext("library_build", "debug: figures mean nothing");
#endif
    benchmark::Initialize(&argc, argv);
    if (!isRegistered || benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
