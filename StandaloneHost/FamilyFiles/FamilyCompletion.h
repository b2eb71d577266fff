#pragma once

#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/FamilyFileContent.h"
#include "FamilyFiles/Reason.h"

#include <array>
#include <optional>
#include <string>

namespace familyfiles {

class BuildProgress;

/// Sizes of the shaded pictures in a family file, in pixels.
constexpr std::array<int, 4> PreviewSizes = {64, 128, 256, 512};

constexpr std::array<DrawingView, 3> AllViews = {DrawingView::Plan, DrawingView::Elevation, DrawingView::Profile};

/// "plan", "elevation" or "profile".
const char* ViewName(DrawingView view);

/// "previews/128.png"
std::string PreviewEntryName(int pixels);

/// "drawings/plan.svg"
std::string DrawingEntryName(DrawingView view);

/// What goes into a family file: the manifest with what came out when its first type was built, shaded pictures and
/// drawings of that type. A family without geometry is its manifest alone. The same manifest gives the same content.
/// @param progress may be null
/// @return nothing with a reason: those of FamilyModel, or of making pictures
std::optional<FamilyFileContent> CompleteFamily(
    FamilyManifest manifest, Reason& reason, BuildProgress* progress = nullptr);

} // namespace familyfiles
