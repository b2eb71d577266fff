#pragma once

#include "FamilyFiles/Geometry/ShapeBody.h"

#include <BRepBuilderAPI_MakeShape.hxx>
#include <TopoDS_TShape.hxx>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace familyfiles {

/// Remembers which material each face has, while operations turn faces into other faces.
///
/// Faces that nobody has said anything about have material 0, that of the whole component. A component of one material
/// needs no history: IsNeeded is false then and operations may leave it out.
class FaceMaterials
{
public:
    /// @param names 0 is the component's own material
    explicit FaceMaterials(std::vector<std::string> names);

    bool IsNeeded() const { return m_names.size() > 1; }

    const std::vector<std::string>& Names() const { return m_names; }

    /// Gives all faces of @p shape the material @p name, which must be known.
    void Paint(const TopoDS_Shape& shape, const std::string& name);

    /// Hands the materials of @p before on to what @p operation has made of its faces.
    void Follow(const ShapeBody& before, BRepBuilderAPI_MakeShape& operation);

    /// Index of the material in Names.
    std::size_t Of(const TopoDS_Shape& face) const;

private:
    struct Entry
    {
        Handle(TopoDS_TShape) face; ///< Kept, or its address could come to stand for another face.
        std::size_t material;
    };

    void Set(const TopoDS_Shape& face, std::size_t material);

    std::vector<std::string> m_names;
    std::unordered_map<const TopoDS_TShape*, Entry> m_materials;
};

} // namespace familyfiles
