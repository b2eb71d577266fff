#pragma once

#include <QString>
#include <QStringList>

namespace nuq {

/** The known word that was most likely meant, or an empty text when none is near. */
QString Suggestion(const QString& word, const QStringList& known);

} // namespace nuq
