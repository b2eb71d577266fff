#pragma once

#include "FamilyFiles/Reason.h"

#include <QStringList>

namespace familyfiles {

class GeometryKernel;

/// The geometry kernel out of its module, or why there is none.
struct KernelModule
{
    const GeometryKernel* kernel = nullptr;
    Reason reason;
};

/// Where the module is looked for: in ../lib and the installed library folder beside the program's own folder, which is
/// also the layout of a build tree.
QStringList KernelModuleFolders();

/// Loads libTarnNuqGeometry from the first of the folders that has it; it stays loaded. A module of another version of
/// this program is refused.
KernelModule LoadKernelModule(const QStringList& folders);

} // namespace familyfiles
