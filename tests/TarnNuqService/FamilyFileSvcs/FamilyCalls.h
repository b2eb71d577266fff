#pragma once

#include <functional>
#include <string>
#include <vector>

namespace testsupport {

/// What the library asked of a family file, in order.
class FamilyCalls
{
public:
    void Note(const std::string& call)
    {
        calls.push_back(call);
        if (onCall) {
            onCall(call);
        }
    }

    std::vector<std::string> calls;
    /// Called after each note, for example to throw.
    std::function<void(const std::string& call)> onCall;
};

} // namespace testsupport
