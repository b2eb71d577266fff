#include "Records/ProjectComponentExistingCheck.h"

namespace tarnnuq {

ProjectComponentExistingCheck::~ProjectComponentExistingCheck() = default;

} // namespace tarnnuq
