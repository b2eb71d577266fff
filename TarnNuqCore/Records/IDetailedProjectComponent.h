#pragma once

#include "Records/IProjectComponent.h"
#include "TarnNuqCoreExport.h"

#include <map>
#include <string>
#include <vector>

namespace tarnnuq {

/// A project component with its family types and its thumbnails in every size.
class TARNNUQCORE_EXPORT IDetailedProjectComponent : public IProjectComponent
{
public:
    IDetailedProjectComponent() = default;
    ~IDetailedProjectComponent() override;

    std::vector<std::wstring> FamilyTypeNames; ///< Names of the family types, in the order of the reply.

    /// Thumbnail URLs by pixel size; the key is the size in decimal, ordered as text ("128" before "64").
    std::map<std::wstring, std::vector<std::wstring>> Thumbnails;
};

} // namespace tarnnuq
