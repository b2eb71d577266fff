#pragma once

#include <QString>

namespace standalone {

/// The text as it may stand in a one-line record: line breaks, control characters and the invisible characters
/// that break lines or turn the writing direction become visible escapes ("\n", "\x1b", "\u202e"). What comes
/// from outside can then neither start a line of its own, and so forge a record, nor steer a terminal.
/// A backslash stays as it is.
QString LogLine(const QString& text);

} // namespace standalone
