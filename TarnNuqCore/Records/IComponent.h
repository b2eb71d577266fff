#pragma once

#include "TarnNuqCoreExport.h"

#include <string>

namespace tarnnuq {

/// What all components have in common.
class TARNNUQCORE_EXPORT IComponent
{
public:
    IComponent() = default;
    virtual ~IComponent();

    std::wstring Id;           ///< Component id as text; a numeric id is written without decimals.
    std::wstring Name;         ///< Display name.
    std::wstring CategoryId;   ///< Category id as text.
    std::wstring CategoryCode; ///< Category code.
    std::wstring Thumbnail;    ///< Full URL of the thumbnail; empty when there is none.
};

} // namespace tarnnuq
