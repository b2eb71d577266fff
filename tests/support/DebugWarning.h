#pragma once

#include <string>

namespace testsupport {

/// One debug warning as the host got it.
struct DebugWarning
{
    std::string file;
    int line = 0;
    std::string function;
    std::wstring message;
    std::wstring author;
    std::wstring date;
};

} // namespace testsupport
