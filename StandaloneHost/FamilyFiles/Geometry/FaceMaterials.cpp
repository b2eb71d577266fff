#include "FamilyFiles/Geometry/FaceMaterials.h"

#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <algorithm>
#include <utility>

namespace familyfiles {

FaceMaterials::FaceMaterials(std::vector<std::string> names) : m_names(std::move(names)) {}

void FaceMaterials::Paint(const TopoDS_Shape& shape, const std::string& name)
{
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    const auto material = static_cast<std::size_t>(found - m_names.begin());
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        Set(faces.Current(), material);
    }
}

void FaceMaterials::Follow(const ShapeBody& before, BRepBuilderAPI_MakeShape& operation)
{
    for (const TopoDS_Shape& shape : before) {
        for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
            const std::size_t material = Of(faces.Current());
            if (material == 0) {
                continue;
            }
            const TopTools_ListOfShape& successors = operation.Modified(faces.Current());
            for (const TopoDS_Shape& successor : successors) {
                Set(successor, material);
            }
        }
    }
}

std::size_t FaceMaterials::Of(const TopoDS_Shape& face) const
{
    const auto found = m_materials.find(face.TShape().get());
    return found == m_materials.end() ? 0 : found->second.material;
}

void FaceMaterials::Set(const TopoDS_Shape& face, std::size_t material)
{
    m_materials[face.TShape().get()] = {face.TShape(), material};
}

} // namespace familyfiles
