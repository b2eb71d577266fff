#pragma once

#include "FamilyFiles/Manifest/FamilyManifest.h"
#include "FamilyFiles/Reason.h"

#include <QByteArray>

#include <optional>

namespace nuq {

/**
 * Reads the description of a family that a person has written: a manifest in which "format" and "version" may be left
 * out, the ids of parameters and their storage types too (then a number, unless the default says otherwise), and texts
 * in both languages may be one text. An id that is left out is made from the name, as the catalogue makes those of its
 * parameters from their codes, so that the two meet.
 * @return nothing with a reason: those of ReadManifest
 */
std::optional<familyfiles::FamilyManifest> ReadDescription(const QByteArray& json, familyfiles::Reason& reason);

} // namespace nuq
