#pragma once

#include "Pictures/Symbol.h"
#include "Reading/SourceFiles.h"

#include <map>
#include <string>

namespace samplelibrary {

/// Reads symbols.txt: each symbol begins with a line "[name]", each further line is a shape: its style and its steps.
/// Throws SourceError.
std::map<std::string, Symbol> ReadSymbols(const SourceFiles& files);

} // namespace samplelibrary
