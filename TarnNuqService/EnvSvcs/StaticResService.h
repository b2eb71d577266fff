#pragma once

#include "TarnNuqServiceExport.h"

#include <string>

namespace tarnnuq {

/// Full URLs of static resources.
class TARNNUQSERVICE_EXPORT StaticResService
{
public:
    /// @param path path of a thumbnail or image, with or without a leading slash
    /// @return the static endpoint followed by the path, a slash between unless the path begins with one; the bare
    /// endpoint for an empty path
    static std::wstring GetStaticResource(std::wstring path);
};

} // namespace tarnnuq
