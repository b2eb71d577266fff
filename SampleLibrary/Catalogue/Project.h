#pragma once

#include "Reading/BilingualText.h"
#include "Reading/SourceFiles.h"

#include <cstddef>
#include <string>
#include <vector>

namespace samplelibrary {

/// A building project whose library holds some of the catalogue's components.
struct Project
{
    std::string Id;
    BilingualText Name;
    std::size_t ComponentCount = 0;
    std::size_t OldEvery = 0; ///< every so-many-th component is held in an older version than the catalogue's
    int Major = -1;           ///< only components of this major; -1 for all
};

/// Reads the projects of the source. Throws SourceError.
std::vector<Project> ReadProjects(const SourceFiles& files);

} // namespace samplelibrary
