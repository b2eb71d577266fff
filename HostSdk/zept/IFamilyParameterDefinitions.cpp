#include "zept/IFamilyParameterDefinitions.h"

namespace zept {

IFamilyParameterDefinitions::~IFamilyParameterDefinitions() = default;

} // namespace zept
