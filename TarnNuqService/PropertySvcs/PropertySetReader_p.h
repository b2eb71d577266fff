#pragma once

namespace tarn {
class ITarnCategoryInfo;
} // namespace tarn

namespace tarnnuq {

class ICategoryProperty;
struct WarningSource;

/// Reads the type parameters that a host category defines, by sort index. Those of instances are left out.
/// @param source on whose behalf warnings about null properties, and definitions that cannot be made, are raised
/// @param property receives id, name and definitions; new before
void ReadPropertySet(const tarn::ITarnCategoryInfo& info, const WarningSource& source, ICategoryProperty& property);

} // namespace tarnnuq
