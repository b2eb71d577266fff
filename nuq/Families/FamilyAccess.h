#pragma once

#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/FamilyShape.h"
#include "FamilyFiles/Manifest/BilingualText.h"
#include "FamilyFiles/Reason.h"
#include "Output/JsonWriter.h"
#include "Program/ExitCode.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace nuq {

class Session;

// How the commands reach family files. What fails is told to the user at once; the caller returns the exit code.

/** A text of the family in the user's language, or in the other one when there is none. */
QString TextOf(const Session& session, const familyfiles::BilingualText& text);

/** The sentence of a reason in the user's language. */
QString SentenceOf(const Session& session, const familyfiles::Reason& reason);

/** The object of a reason with code, subject and text, or null when there is none. */
void WriteReason(JsonWriter& json, const Session& session, const familyfiles::Reason& reason);

/** Tell why a family file cannot be used; after Ctrl-C tells of that. @return the exit code that goes with it */
ExitCode FailWith(Session& session, const familyfiles::Reason& reason);

/** Open a family file. @return null with @p code set */
std::unique_ptr<familyfiles::FamilyModel> OpenFamily(Session& session, const QString& path, ExitCode& code);

/** The index of a type; the first one when the name is empty. @return nothing with @p code set */
std::optional<std::size_t> FindType(
    Session& session, const familyfiles::FamilyModel& model, const QString& name, ExitCode& code);

/** Whether the family has a type of that name. */
std::optional<std::size_t> TypeIndex(const familyfiles::FamilyModel& model, const QString& name);

/** The body of one type of a family file, with progress on a terminal. @return nothing with @p code set */
std::optional<familyfiles::FamilyShape> BuildShape(
    Session& session, const QString& path, const QString& typeName, ExitCode& code);

} // namespace nuq
