#pragma once

#include "Records/IComponent.h"
#include "TarnNuqCoreExport.h"

#include <cstdint>
#include <string>

namespace tarnnuq {

/// A component stored in a project's library.
class TARNNUQCORE_EXPORT IProjectComponent : public IComponent
{
public:
    IProjectComponent() = default;
    ~IProjectComponent() override;

    std::int32_t Version = 0;       ///< Version number.
    std::int32_t Source = 0;        ///< Where the component came from, as the number sent.
    std::wstring PublicComponentId; ///< Id of the public component it was taken from.
    std::wstring Status;            ///< Status text.
};

} // namespace tarnnuq
