#include "Records/IProjectComponent.h"

namespace tarnnuq {

IProjectComponent::~IProjectComponent() = default;

} // namespace tarnnuq
