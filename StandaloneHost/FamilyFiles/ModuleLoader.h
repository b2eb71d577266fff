#pragma once

#include "FamilyFiles/Reason.h"

#include <QStringList>

namespace familyfiles {

/// What a module of this program exports, or why it could not be loaded.
struct LoadedModule
{
    /// Null when there is a reason.
    const void* object = nullptr;
    Reason reason;
};

/// Where modules are looked for: in ../lib and the installed library folder beside the program's own folder, which is
/// also the layout of a build tree.
QStringList ModuleFolders();

/// Loads a module from the first of the folders that has it, and keeps it loaded.
///
/// @param module   name of the file
/// @param function what it exports: a function that gets this program's version and gives the object, which the module
/// owns,
///        or null when it is of another version
/// @return with a reason (module.missing) when it is not there, cannot be loaded or is of another version
LoadedModule LoadModule(const QStringList& folders, const char* module, const char* function);

} // namespace familyfiles
