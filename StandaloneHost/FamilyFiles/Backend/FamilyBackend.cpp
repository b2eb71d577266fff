#include "FamilyFiles/Backend/FamilyBackend.h"

#include "FamilyFiles/ModuleLoader.h"

namespace familyfiles {

const FamilyBackend* FamilyBackend::Get(Reason& reason)
{
    static const LoadedModule module =
        LoadModule(ModuleFolders(), "libTarnNuqFamilyBackend.so", "TarnNuqFamilyBackend");
    if (module.object == nullptr) {
        reason = module.reason;
    }
    return static_cast<const FamilyBackend*>(module.object);
}

} // namespace familyfiles
