#pragma once

#include "Reading/ProductSource.h"
#include "Reading/SourceFiles.h"

namespace samplelibrary {

/// Reads groups, units, enumerations, the trade's parameters and the property sets of ISO 16739-1 into @p source.
/// Throws SourceError.
void ReadParameters(const SourceFiles& files, ProductSource& source);

/// Throws SourceError beginning with @p where when the group, unit or enumeration of @p parameter is not known.
void CheckReferences(const Parameter& parameter, const ProductSource& source, const std::string& where);

/// The lasting identifier of the parameter with @p code: a name-based UUID, lower case, without braces.
std::string ParameterGuid(const std::string& code);

} // namespace samplelibrary
