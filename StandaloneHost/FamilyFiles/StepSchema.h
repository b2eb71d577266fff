#pragma once

namespace familyfiles {

/// Which application protocol of STEP a file follows: the older, that every program reads, or the newer one.
enum class StepSchema
{
    Ap214,
    Ap242
};

} // namespace familyfiles
