#include "Records/IComponent.h"

namespace tarnnuq {

IComponent::~IComponent() = default;

} // namespace tarnnuq
