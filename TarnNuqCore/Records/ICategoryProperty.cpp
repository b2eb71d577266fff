#include "Records/ICategoryProperty.h"

#include "Records/IParameterDefinition.h"

namespace tarnnuq {

ICategoryProperty::~ICategoryProperty() = default;

} // namespace tarnnuq
