#pragma once

#include "wab/IWabConfigManager.h"

#include <map>
#include <string>

namespace testsupport {

/// Names the endpoints that the test sets; any other is empty.
class FakeWabConfigManager final : public wab::IWabConfigManager
{
public:
    std::wstring GetEndPoint(const std::wstring& name) const override
    {
        const auto found = endPoints.find(name);
        return found != endPoints.end() ? found->second : std::wstring();
    }

    std::map<std::wstring, std::wstring> endPoints;
};

} // namespace testsupport
