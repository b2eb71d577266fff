#include "Records/IParameterDefinition.h"

namespace tarnnuq {

IParameterDefinition::~IParameterDefinition() = default;

} // namespace tarnnuq
