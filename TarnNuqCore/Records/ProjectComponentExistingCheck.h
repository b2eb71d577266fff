#pragma once

#include "TarnNuqCoreExport.h"

#include <cstdint>

namespace tarnnuq {

/// The answer to whether a component already exists in the project.
class TARNNUQCORE_EXPORT ProjectComponentExistingCheck
{
public:
    ProjectComponentExistingCheck() = default;
    virtual ~ProjectComponentExistingCheck();

    bool Exist = false;       ///< The component exists in the project.
    std::int32_t Version = 0; ///< Its version in the project.
};

} // namespace tarnnuq
