#pragma once

#include <stdexcept>
#include <string>

namespace familyfiles {

/// Why a shape could not be made; caught at the kernel's border and turned into a reason.
class GeometryFailure : public std::runtime_error
{
public:
    /// @param code stable, "geometry.…"
    GeometryFailure(std::string code, const std::string& english, std::string chinese);

    const std::string& Code() const { return m_code; }
    const std::string& Chinese() const { return m_chinese; }

private:
    std::string m_code;
    std::string m_chinese;
};

} // namespace familyfiles
