#include "Records/IDetailedProjectComponent.h"

namespace tarnnuq {

IDetailedProjectComponent::~IDetailedProjectComponent() = default;

} // namespace tarnnuq
