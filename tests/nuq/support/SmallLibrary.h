#pragma once

#include <QString>

namespace nuqtest {

/// Writes a library into the application folder: the discipline WAT with the category WAT.PMP and one end category,
/// with one property, a plan and an elevation legend and the component C-1.
void WriteSmallLibrary(const QString& applicationFolder, const QString& endCategoryCode = QStringLiteral("WAT.PMP.W"));

} // namespace nuqtest
