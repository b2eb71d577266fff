#pragma once

#include "wab/IBaseConfigManager.h"

#include <string>

namespace testsupport {

/// Names the environment that the test sets.
class FakeBaseConfigManager final : public wab::IBaseConfigManager
{
public:
    std::string GetCurrentEnv() const override { return currentEnv; }

    /// In UTF-8.
    std::string currentEnv = "prod";
};

} // namespace testsupport
