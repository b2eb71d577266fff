#pragma once

#include "FamilyFiles/Manifest/StorageType.h"

#include <string>
#include <variant>

namespace familyfiles {

/// The value of a parameter as it is stored: yes/no, integer, floating-point number or text (UTF-8), in the order of
/// the storage types. Numbers are in the unit that the parameter declares.
using Value = std::variant<bool, int, double, std::string>;

/// The storage type of the alternative that @p value holds.
inline StorageType StorageTypeOf(const Value& value)
{
    return static_cast<StorageType>(value.index() + 3);
}

/// The value that a parameter has when none is given: no, 0 or the empty text.
Value EmptyValue(StorageType storageType);

/// The value as a person reads it, numbers with as many digits as are needed to tell them apart, without a unit; a long
/// text is cut.
std::string ValueText(const Value& value);

} // namespace familyfiles
