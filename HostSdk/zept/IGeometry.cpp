#include "zept/IGeometry.h"

namespace zept {

IGeometry::~IGeometry() = default;

} // namespace zept
