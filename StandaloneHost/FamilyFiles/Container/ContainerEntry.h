#pragma once

#include <string>

namespace familyfiles {

/// One named part of a family file.
struct ContainerEntry
{
    /// Relative, with "/" between folders, UTF-8: "manifest.json", "previews/256.png", "drawings/plan.svg".
    std::string name;
    std::string bytes;
};

} // namespace familyfiles
