#pragma once

namespace familyfiles {

/// How the value of a parameter is stored; the numbers are those of the file and of the host's interface.
enum class StorageType
{
    YesNo = 3,
    Integer = 4,
    FloatingPoint = 5,
    Text = 6
};

} // namespace familyfiles
