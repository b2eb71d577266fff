#pragma once

#include <QString>
#include <QStringList>

namespace componentdatabase {

/// The words of a text as they are searched for: runs of letters and digits, and each Chinese character (as every other
/// letter from U+2E80 on) for itself. Full-width and half-width forms, ligatures and the like fall together, and so do
/// upper and lower case.
QStringList FoldedWords(const QString& text);

/// FoldedWords of each part of the text between blanks; parts without a word are left out.
QList<QStringList> FoldedTerms(const QString& text);

} // namespace componentdatabase
