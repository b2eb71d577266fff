#pragma once

#include "Output/FieldList.h"
#include "Records/IDetailedProjectComponent.h"

namespace nuq {

/** A component with its details, for people. */
FieldList ComponentFields(const tarnnuq::IDetailedProjectComponent& component);

} // namespace nuq
