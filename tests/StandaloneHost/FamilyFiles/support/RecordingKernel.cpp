#include "support/RecordingKernel.h"

#include "FamilyFiles/Drawing/Drawing.h"
#include "FamilyFiles/Drawing/TriangleMesh.h"

namespace {

class RecordedSolid final : public familyfiles::Solid
{
public:
    explicit RecordedSolid(std::atomic<int>& bodies) : m_bodies(bodies) { ++m_bodies; }
    ~RecordedSolid() override { --m_bodies; }

    double Volume() const override { return 1; }
    double Area() const override { return 6; }
    std::array<double, 6> Box() const override { return {0, 0, 0, 1, 1, 1}; }
    bool IsValid() const override { return true; }

private:
    std::atomic<int>& m_bodies;
};

const familyfiles::Reason NoGeometry{"test.none", {}, "The recording kernel has no geometry.", "没有几何。"};

} // namespace

RecordingKernel::RecordingKernel()
{
    GeometryKernel::Use(this);
}

RecordingKernel::~RecordingKernel()
{
    GeometryKernel::Use(nullptr);
}

familyfiles::BuildResult RecordingKernel::Build(
    const familyfiles::ShapePlan& plan, familyfiles::BuildProgress* progress) const
{
    static_cast<void>(progress);
    plans.push_back(plan);
    familyfiles::BuildResult result;
    result.reason = refusal;
    if (!refusal) {
        result.solid = std::make_unique<RecordedSolid>(bodies);
    }
    return result;
}

std::optional<familyfiles::Drawing> RecordingKernel::Draw(const familyfiles::Solid&, familyfiles::DrawingView,
    const std::vector<familyfiles::ConnectorMark>&, familyfiles::Reason& reason) const
{
    reason = NoGeometry;
    return std::nullopt;
}

std::optional<familyfiles::TriangleMesh> RecordingKernel::Mesh(
    const familyfiles::Solid&, familyfiles::Reason& reason) const
{
    reason = NoGeometry;
    return std::nullopt;
}

bool RecordingKernel::WriteStep(
    const familyfiles::Solid&, const std::string&, familyfiles::StepSchema, familyfiles::Reason& reason) const
{
    reason = NoGeometry;
    return false;
}

bool RecordingKernel::WriteGltf(const familyfiles::Solid&, const std::string&, familyfiles::Reason& reason) const
{
    reason = NoGeometry;
    return false;
}

bool RecordingKernel::WriteStl(const familyfiles::Solid&, const std::string&, familyfiles::Reason& reason) const
{
    reason = NoGeometry;
    return false;
}

familyfiles::BuildResult RecordingKernel::ReadStep(const std::string&) const
{
    familyfiles::BuildResult result;
    result.reason = NoGeometry;
    return result;
}
