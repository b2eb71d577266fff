#pragma once

#include "Reading/ProductLine.h"
#include "Reading/SourceFiles.h"

#include <map>
#include <string>

namespace samplelibrary {

/// Reads all files of the folder "profiles": product lines by name, those that extend another one completed by it.
/// Throws SourceError.
std::map<std::string, ProductLine> ReadProfiles(const SourceFiles& files);

/// Lays the @p options of an end category over @p line: parts "name=value" between semicolons. "sizes" and "type"
/// replace the size table and the type name, "when" adds a condition, "propertySets" names further sets; for any other
/// name a value with "|" in it is an axis, else a constant that stands before the formulas. Throws SourceError that
/// begins with @p where.
void ApplyOptions(ProductLine& line, const std::string& options, const std::string& where);

} // namespace samplelibrary
