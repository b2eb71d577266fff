#pragma once

#include "FamilyFiles/DrawingView.h"
#include "FamilyFiles/Recipe/Point3.h"
#include "FamilyFiles/Recipe/Profile.h"

namespace familyfiles {

/// The plane that a view is drawn on.
struct ViewPlane
{
    Point3 right;
    Point3 up;
    Point3 toViewer;

    Point2 Project(const Point3& point) const { return {Dot(point, right), Dot(point, up)}; }
};

/// The plane of @p view.
inline ViewPlane PlaneOf(DrawingView view)
{
    switch (view) {
    case DrawingView::Plan:
        return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    case DrawingView::Elevation:
        return {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}};
    case DrawingView::Profile:
        break;
    }
    return {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}};
}

} // namespace familyfiles
