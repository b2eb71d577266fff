#include "zept/IFamilyParameter.h"

namespace zept {

IFamilyParameter::~IFamilyParameter() = default;

} // namespace zept
