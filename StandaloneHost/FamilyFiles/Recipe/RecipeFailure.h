#pragma once

#include "FamilyFiles/Reason.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace familyfiles {

/// Carries a reason from deep inside the reading or evaluation of a recipe to its border; never leaves this folder.
class RecipeFailure : public std::runtime_error
{
public:
    explicit RecipeFailure(Reason reason) : std::runtime_error(reason.english), m_reason(std::move(reason)) {}

    /// @param code the reason's code
    RecipeFailure(const std::string& code, const std::string& english, const std::string& chinese)
        : RecipeFailure(Reason{code, {}, english, chinese})
    {
    }

    const Reason& Why() const { return m_reason; }

private:
    Reason m_reason;
};

} // namespace familyfiles
