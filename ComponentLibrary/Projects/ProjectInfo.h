#pragma once

#include <string>

namespace componentlibrary {

/** A collaboration project as the service lists it. */
struct ProjectInfo
{
    std::wstring Id;
    std::wstring Name;
};

} // namespace componentlibrary
