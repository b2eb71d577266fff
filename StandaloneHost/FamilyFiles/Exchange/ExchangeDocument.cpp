#include "FamilyFiles/Exchange/ExchangeDocument.h"

#include "FamilyFiles/Recipe/Materials.h"

#include <Quantity_Color.hxx>
#include <TDF_Label.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace familyfiles {

namespace {

Quantity_Color ColourOf(const std::string& material)
{
    const MaterialLook look = FindMaterial(material).value_or(MaterialLook{});
    const auto part = [&look](std::size_t i) { return look.colour[i] / 255.0; };
    return {part(0), part(1), part(2), Quantity_TOC_sRGB};
}

void AddColours(const OcctSolid& solid, const TDF_Label& label, XCAFDoc_ShapeTool& shapes, XCAFDoc_ColorTool& colours)
{
    const SolidLook& look = solid.Look();
    colours.SetColor(label, ColourOf(look.materials.front()), XCAFDoc_ColorSurf);
    std::size_t index = 0;
    for (TopExp_Explorer face(solid.Shape(), TopAbs_FACE); face.More(); face.Next(), ++index) {
        const std::size_t material = index < look.faceMaterials.size() ? look.faceMaterials[index] : 0;
        TDF_Label part;
        if (material != 0 && shapes.AddSubShape(label, face.Current(), part)) {
            colours.SetColor(part, ColourOf(look.materials[material]), XCAFDoc_ColorSurf);
        }
    }
}

} // namespace

ExchangeDocument::ExchangeDocument(const OcctSolid& solid)
{
    XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", m_document);
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(m_document->Main());
    const Handle(XCAFDoc_ColorTool) colours = XCAFDoc_DocumentTool::ColorTool(m_document->Main());
    const TDF_Label label = shapes->AddShape(solid.Shape(), false);
    AddColours(solid, label, *shapes, *colours);
}

ExchangeDocument::~ExchangeDocument()
{
    XCAFApp_Application::GetApplication()->Close(m_document);
}

} // namespace familyfiles
