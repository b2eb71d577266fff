#pragma once

#include "FamilyFiles/Drawing/LineSegments.h"

#include <vector>

namespace familyfiles {

/// The pieces without what lies on others: where two run along one line and overlap they become one, and parts that lie
/// on a piece of @p covering are cut away.
///
/// Edges at the back of a component lie behind those at its front as often as not; drawn on top of each other they
/// would spoil dashes and double the document.
/// @param tolerance how far apart two lines count as one, mm
std::vector<LineSegment> WithoutOverlaps(
    const std::vector<LineSegment>& pieces, const std::vector<LineSegment>& covering, double tolerance);

} // namespace familyfiles
