#pragma once

#include "FamilyFiles/Recipe/Frame.h"
#include "FamilyFiles/Recipe/Profile.h"

#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>

namespace familyfiles {

/// The outline as a closed wire in the plane of @p frame, counter-clockwise about its W.
TopoDS_Wire MakeWire(const Loop& loop, const Frame& frame);

/// The profile as a plane face with its holes; its normal is the frame's W.
TopoDS_Face MakeFace(const Profile& profile, const Frame& frame);

} // namespace familyfiles
