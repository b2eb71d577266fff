#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"

namespace componentdatabase {

/// A category of a discipline, or an end category beneath such a category.
struct CategoryRow
{
    qint64 id = 0;
    QString code; ///< Unique among categories.
    qint64 disciplineId = 0;
    qint64 parentId = 0; ///< The category above an end category; 0 for a category of the discipline itself.
    int sortIndex = 0;   ///< Within its level.
    BilingualName name;
};

} // namespace componentdatabase
