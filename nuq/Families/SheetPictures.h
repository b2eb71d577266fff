#pragma once

#include "Families/ContactSheet.h"
#include "FamilyFiles/Reason.h"

#include <QStringList>

#include <vector>

namespace nuq {

class Session;

using SheetPictures = std::vector<componentlibrary::SheetPicture>;

/**
 * The shaded picture of each family's first type: the one in the file, else one that is made now.
 * @return false with a reason; the file concerned stands in the reason's subject
 */
bool AddShadedPictures(
    Session& session, const QStringList& files, int pixels, SheetPictures& pictures, familyfiles::Reason& reason);

/** The three drawings of each family's first type. */
bool AddDrawings(
    Session& session, const QStringList& files, int pixels, SheetPictures& pictures, familyfiles::Reason& reason);

/** Picture files as they are, under the name of their folder, as pictures of several sizes have one name. */
bool AddPictureFiles(const QStringList& files, SheetPictures& pictures, familyfiles::Reason& reason);

} // namespace nuq
