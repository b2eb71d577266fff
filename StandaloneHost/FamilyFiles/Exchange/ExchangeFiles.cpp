#include "FamilyFiles/Exchange/ExchangeFiles.h"

#include "FamilyFiles/Exchange/EmbeddedGltf.h"
#include "FamilyFiles/Exchange/ExchangeDocument.h"
#include "FamilyFiles/Exchange/WholeFile.h"
#include "FamilyFiles/Geometry/GeometryFailure.h"

#include <IFSelect_ReturnStatus.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_PrinterOStream.hxx>
#include <Message_ProgressRange.hxx>
#include <RWGltf_CafWriter.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <STEPControl_Reader.hxx>
#include <StlAPI_Writer.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <mutex>

namespace familyfiles {

namespace {

/// The library keeps the settings of its readers and writers, and its open documents, in one place for all threads.
std::mutex& ExchangeLock()
{
    static std::mutex lock;
    return lock;
}

bool WriteStepTo(const ExchangeDocument& document, const std::string& path, StepSchema schema)
{
    // The settings are there once the library knows its STEP module, and a writer takes them when it is made.
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("write.step.schema", schema == StepSchema::Ap214 ? "AP214IS" : "AP242DIS");
    Interface_Static::SetCVal("write.step.unit", "MM");
    STEPCAFControl_Writer writer;
    writer.SetColorMode(true);
    writer.SetNameMode(false);
    return writer.Transfer(document.Document(), STEPControl_AsIs) && writer.Write(path.c_str()) == IFSelect_RetDone;
}

bool WriteGltfTo(const ExchangeDocument& document, const std::string& path)
{
    constexpr double metresPerMillimetre = 0.001;
    RWGltf_CafWriter writer(path.c_str(), true);
    writer.ChangeCoordinateSystemConverter().SetInputLengthUnit(metresPerMillimetre);
    writer.ChangeCoordinateSystemConverter().SetInputCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    return writer.Perform(document.Document(), TColStd_IndexedDataMapOfStringString(), Message_ProgressRange());
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

void SilenceMessages()
{
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_PrinterOStream));
}

void WriteStepFile(const OcctSolid& solid, const std::string& path, StepSchema schema)
{
    const std::lock_guard<std::mutex> guard(ExchangeLock());
    const ExchangeDocument document(solid);
    WriteWhole(
        path, WriteAside(".step", [&](const std::string& aside) { return WriteStepTo(document, aside, schema); }));
}

void WriteGltfFile(const OcctSolid& solid, const std::string& path)
{
    solid.EnsureTriangles();
    const std::lock_guard<std::mutex> guard(ExchangeLock());
    const ExchangeDocument document(solid);
    const QByteArray binary =
        WriteAside(".glb", [&](const std::string& aside) { return WriteGltfTo(document, aside); });
    WriteWhole(path, EndsWith(path, ".gltf") ? EmbeddedGltf(binary) : binary);
}

void WriteStlFile(const OcctSolid& solid, const std::string& path)
{
    solid.EnsureTriangles();
    WriteWhole(path, WriteAside(".stl", [&solid](const std::string& aside) {
        StlAPI_Writer writer;
        writer.ASCIIMode() = false;
        return writer.Write(solid.Shape(), aside.c_str());
    }));
}

TopoDS_Shape ReadStepFile(const std::string& path)
{
    const std::lock_guard<std::mutex> guard(ExchangeLock());
    STEPControl_Reader reader;
    if (reader.ReadFile(path.c_str()) != IFSelect_RetDone || reader.TransferRoots() == 0) {
        throw GeometryFailure("exchange.failed", "The STEP file cannot be read", "无法读取 STEP 文件");
    }
    return reader.OneShape();
}

} // namespace familyfiles
