#include "Families/SheetPictures.h"

#include "Families/InterruptibleBuild.h"
#include "FamilyFiles/Drawing/DrawingPicture.h"
#include "FamilyFiles/FamilyCompletion.h"
#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/FamilyShape.h"
#include "Program/Session.h"

#include <QDir>
#include <QFileInfo>

namespace nuq {

using familyfiles::FamilyShape;
using familyfiles::Reason;

namespace {

QString LabelOf(const QString& file)
{
    return QFileInfo(file).completeBaseName();
}

std::optional<FamilyShape> ShapeOf(InterruptibleBuild& progress, const QString& file, Reason& reason)
{
    const auto model = familyfiles::FamilyModel::Open(file.toStdString(), reason);
    const auto values = model ? model->TypeValues(0, reason) : std::nullopt;
    if (!values)
        return std::nullopt;
    progress.SetSubject(LabelOf(file));
    return FamilyShape::Build(*model, *values, reason, &progress);
}

/// The smallest picture in the file that need not be made larger; null when there is none.
QImage StoredPicture(const QString& file, int pixels)
{
    for (const int size : familyfiles::PreviewSizes) {
        Reason ignored;
        const auto bytes = size < pixels ? std::nullopt
                                         : familyfiles::FamilyFileReader::ReadEntry(
                                               file.toStdString(), familyfiles::PreviewEntryName(size), ignored);
        const QImage picture = bytes ? QImage::fromData(QByteArray::fromStdString(*bytes)) : QImage();
        if (!picture.isNull())
            return picture;
    }
    return QImage();
}

/// So that the user learns which of many files it was.
void NameFile(const QString& file, Reason& reason)
{
    reason.english = file.toStdString() + ": " + reason.english;
    reason.chinese = file.toStdString() + "：" + reason.chinese;
}

std::optional<QImage> ShadedPictureOf(InterruptibleBuild& progress, const QString& file, int pixels, Reason& reason)
{
    const QImage stored = StoredPicture(file, pixels);
    if (!stored.isNull())
        return stored;
    std::optional<FamilyShape> shape = ShapeOf(progress, file, reason);
    return shape ? shape->Render(pixels, reason) : std::nullopt;
}

} // namespace

bool AddShadedPictures(Session& session, const QStringList& files, int pixels, SheetPictures& pictures, Reason& reason)
{
    InterruptibleBuild progress(session);
    for (const QString& file : files) {
        const auto picture = ShadedPictureOf(progress, file, pixels, reason);
        if (!picture) {
            NameFile(file, reason);
            return false;
        }
        pictures.push_back({*picture, LabelOf(file)});
    }
    return true;
}

bool AddDrawings(Session& session, const QStringList& files, int pixels, SheetPictures& pictures, Reason& reason)
{
    InterruptibleBuild progress(session);
    for (const QString& file : files) {
        const auto shape = ShapeOf(progress, file, reason);
        for (const auto view : familyfiles::AllViews) {
            const auto drawing = shape ? shape->Draw(view, reason) : std::nullopt;
            if (!drawing) {
                NameFile(file, reason);
                return false;
            }
            const QString label = LabelOf(file) + QLatin1Char(' ') + QLatin1String(familyfiles::ViewName(view));
            pictures.push_back({familyfiles::DrawingPicture(*drawing, pixels), label});
        }
    }
    return true;
}

bool AddPictureFiles(const QStringList& files, SheetPictures& pictures, Reason& reason)
{
    for (const QString& file : files) {
        const QImage picture(file);
        if (picture.isNull()) {
            reason = {"file.unreadable", {}, "The picture cannot be read.", "无法读取该图片。"};
            NameFile(file, reason);
            return false;
        }
        pictures.push_back({picture, QFileInfo(file).dir().dirName()});
    }
    return true;
}

} // namespace nuq
