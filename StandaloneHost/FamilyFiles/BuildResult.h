#pragma once

#include "FamilyFiles/Reason.h"
#include "FamilyFiles/Solid.h"

#include <memory>

namespace familyfiles {

/// Either a body or why there is none.
struct BuildResult
{
    std::unique_ptr<Solid> solid;
    Reason reason;
};

} // namespace familyfiles
