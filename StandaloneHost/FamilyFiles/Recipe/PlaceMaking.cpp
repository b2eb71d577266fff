#include "FamilyFiles/Recipe/PlaceMaking.h"

namespace familyfiles {

Frame PlaceOf(const RecipeValue& members, const MemberValues& values, double length)
{
    const Point3 axis = values.Axis(members, "axis", {0, 0, 1});
    Point3 origin = values.Point(members, "at");
    if (MemberValues::Flag(members, "centred", false)) {
        origin = origin - axis * (length / 2);
    }
    return MakeFrame(origin, axis, values.Number(members, "turn", 0));
}

} // namespace familyfiles
