#pragma once

#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Recipe/Point3.h"
#include "FamilyFiles/Recipe/Profile.h"
#include "FamilyFiles/Recipe/RecipeContent.h"

#include <cstddef>
#include <string_view>

namespace familyfiles {

/// Works out the numbers of members and holds each to what its kind allows, so that no number reaches a shape
/// unchecked. All functions throw RecipeFailure (without a subject).
class MemberValues
{
public:
    /// Both must outlive the object; @p scope has the values.
    MemberValues(const RecipeContent& content, const Scope& scope);

    double Number(const RecipeValue& value) const;
    std::size_t Count(const RecipeValue& value) const;
    bool IsTrue(const RecipeValue& condition) const;
    Point3 Point(const RecipeValue& list) const;
    Point2 PlanePoint(const RecipeValue& list) const;

    /// A direction of unit length.
    Point3 Axis(const RecipeValue& value) const;

    /// The member's number, or @p otherwise when it is not given.
    double Number(const RecipeValue& object, std::string_view member, double otherwise) const;
    Point3 Point(const RecipeValue& object, std::string_view member) const;
    Point3 Axis(const RecipeValue& object, std::string_view member, const Point3& otherwise) const;
    static bool Flag(const RecipeValue& object, std::string_view member, bool otherwise);

    /// The radius given as "radius" or, halved, as "diameter"; @p suffix stands behind these names.
    double Radius(const RecipeValue& object, std::string_view suffix = {}) const;

private:
    double Raw(const RecipeValue& value) const;

    const RecipeContent& m_content;
    const Scope& m_scope;
};

} // namespace familyfiles
