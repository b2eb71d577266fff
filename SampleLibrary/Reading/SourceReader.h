#pragma once

#include "Reading/ProductSource.h"
#include "Reading/SourceFiles.h"

namespace samplelibrary {

/// Reads all source files. Throws SourceError that names the file and the line of the first fault.
ProductSource ReadSource(const SourceFiles& files);

} // namespace samplelibrary
