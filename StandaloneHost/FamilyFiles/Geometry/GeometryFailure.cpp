#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <utility>

namespace familyfiles {

GeometryFailure::GeometryFailure(std::string code, const std::string& english, std::string chinese)
    : std::runtime_error(english), m_code(std::move(code)), m_chinese(std::move(chinese))
{
}

} // namespace familyfiles
