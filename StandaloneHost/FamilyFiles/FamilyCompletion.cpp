#include "FamilyFiles/FamilyCompletion.h"

#include "FamilyFiles/Drawing/DrawingSvg.h"
#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/FamilyShape.h"

#include <QBuffer>
#include <utility>

namespace familyfiles {

namespace {

std::string PngBytes(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes.toStdString();
}

bool AddPreviews(FamilyShape& shape, FamilyFileContent& content, Reason& reason)
{
    for (const int pixels : PreviewSizes) {
        const std::optional<QImage> picture = shape.Render(pixels, reason);
        if (!picture) {
            return false;
        }
        content.entries.push_back({PreviewEntryName(pixels), PngBytes(*picture)});
    }
    return true;
}

bool AddDrawings(const FamilyShape& shape, FamilyFileContent& content, Reason& reason)
{
    for (const DrawingView view : AllViews) {
        const std::optional<Drawing> drawing = shape.Draw(view, reason);
        if (!drawing) {
            return false;
        }
        content.entries.push_back({DrawingEntryName(view), DrawingSvg(*drawing)});
    }
    return true;
}

BuiltRecord RecordOf(const FamilyShape& shape, const std::optional<BuiltRecord>& before)
{
    BuiltRecord record;
    record.volume = shape.Body().Volume();
    record.area = shape.Body().Area();
    record.box = shape.Body().Box();
    record.kernel = shape.KernelName();
    record.extra = before ? before->extra : std::string();
    return record;
}

} // namespace

const char* ViewName(DrawingView view)
{
    switch (view) {
    case DrawingView::Plan:
        return "plan";
    case DrawingView::Elevation:
        return "elevation";
    case DrawingView::Profile:
        break;
    }
    return "profile";
}

std::string PreviewEntryName(int pixels)
{
    return "previews/" + std::to_string(pixels) + ".png";
}

std::string DrawingEntryName(DrawingView view)
{
    return std::string("drawings/") + ViewName(view) + ".svg";
}

std::optional<FamilyFileContent> CompleteFamily(FamilyManifest manifest, Reason& reason, BuildProgress* progress)
{
    FamilyFileContent content;
    content.manifest = manifest;
    const std::unique_ptr<FamilyModel> model = FamilyModel::Make(std::move(manifest), reason);
    const auto values = model ? model->TypeValues(0, reason) : std::nullopt;
    if (!values) {
        return std::nullopt;
    }
    if (content.manifest.geometry.empty()) {
        content.manifest.built.reset();
        return content;
    }
    std::optional<FamilyShape> shape = FamilyShape::Build(*model, *values, reason, progress);
    if (!shape) {
        return std::nullopt;
    }
    content.manifest.built = RecordOf(*shape, content.manifest.built);
    if (!AddPreviews(*shape, content, reason) || !AddDrawings(*shape, content, reason)) {
        return std::nullopt;
    }
    return content;
}

} // namespace familyfiles
