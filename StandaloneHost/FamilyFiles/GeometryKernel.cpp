#include "FamilyFiles/GeometryKernel.h"

#include "FamilyFiles/BuildProgress.h"
#include "FamilyFiles/ModuleLoader.h"

#include <atomic>

namespace familyfiles {

namespace {

std::atomic<const GeometryKernel*>& Given()
{
    static std::atomic<const GeometryKernel*> given{nullptr};
    return given;
}

} // namespace

Solid::~Solid() = default;
BuildProgress::~BuildProgress() = default;
GeometryKernel::~GeometryKernel() = default;

void GeometryKernel::Use(const GeometryKernel* kernel)
{
    Given() = kernel;
}

const GeometryKernel* GeometryKernel::Get(Reason& reason)
{
    const GeometryKernel* const given = Given();
    if (given != nullptr) {
        return given;
    }
    // Loaded once; a module that is missing now will not appear while the program runs.
    static const LoadedModule module = LoadModule(ModuleFolders(), "libTarnNuqGeometry.so", "TarnNuqGeometryKernel");
    if (module.object == nullptr) {
        reason = module.reason;
    }
    return static_cast<const GeometryKernel*>(module.object);
}

} // namespace familyfiles
