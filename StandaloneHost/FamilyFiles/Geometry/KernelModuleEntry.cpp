#include "FamilyFiles/Geometry/OcctKernel.h"

#include <cstring>

/// What the module exports: its kernel, for a program of the same version alone. The kernel lives as long as the
/// module.
extern "C" __attribute__((visibility("default"))) const familyfiles::GeometryKernel* TarnNuqGeometryKernel(
    const char* version)
{
    static const familyfiles::OcctKernel kernel;
    return std::strcmp(version, TARNNUQ_VERSION) == 0 ? &kernel : nullptr;
}
