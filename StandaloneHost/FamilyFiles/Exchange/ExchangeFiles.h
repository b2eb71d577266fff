#pragma once

#include "FamilyFiles/Geometry/OcctSolid.h"
#include "FamilyFiles/StepSchema.h"

#include <TopoDS_Shape.hxx>
#include <string>

namespace familyfiles {

/// Keeps the library from printing pages about every exchange file to standard output.
void SilenceMessages();

/// Writes files for other programs; each as a whole or not at all. Colours go along, in STL there are none.
/// @param path UTF-8
/// All throw GeometryFailure (exchange.failed) or Standard_Failure.
void WriteStepFile(const OcctSolid& solid, const std::string& path, StepSchema schema);

/// glTF 2.0 in metres, Y up. A path that ends in ".gltf" gets one JSON file with all in it, every other the binary
/// form.
void WriteGltfFile(const OcctSolid& solid, const std::string& path);

/// Binary STL.
void WriteStlFile(const OcctSolid& solid, const std::string& path);

/// The shapes of a STEP file as one. For files that this program has written: the library's reader is not made for
/// hostile ones.
TopoDS_Shape ReadStepFile(const std::string& path);

} // namespace familyfiles
