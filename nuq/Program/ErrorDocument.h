#pragma once

#include "Errors/ErrorInfo.h"
#include "Output/JsonWriter.h"
#include "Program/ExitCode.h"

#include <QStringList>

namespace nuq {

/** The members of an error: "code", "details", "message"; the object around them is the caller's. */
void WriteError(JsonWriter& json, const componentlibrary::ErrorInfo& error);

/** The members of an error that is none of a request; its details are empty but for the hint. */
void WriteError(JsonWriter& json, const char* id, const QString& sentence, const QString& hint);

/** The exit code for an error. */
ExitCode ExitCodeOf(const componentlibrary::ErrorInfo& error);

/** What is known about an error beyond its sentence, one fact a line, for --verbose. */
QStringList ErrorDetails(const componentlibrary::ErrorInfo& error);

} // namespace nuq
