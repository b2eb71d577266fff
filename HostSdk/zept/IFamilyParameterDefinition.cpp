#include "zept/IFamilyParameterDefinition.h"

namespace zept {

IFamilyParameterDefinition::~IFamilyParameterDefinition() = default;

} // namespace zept
