#include "Records/ISpecification.h"

#include "Records/IParameter.h"

namespace tarnnuq {

ISpecification::~ISpecification() = default;

} // namespace tarnnuq
