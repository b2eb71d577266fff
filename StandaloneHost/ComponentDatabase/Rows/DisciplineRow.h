#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"

namespace componentdatabase {

/// A discipline, the topmost level of the category tree.
struct DisciplineRow
{
    qint64 id = 0;
    QString code; ///< Unique among disciplines.
    int sortIndex = 0;
    BilingualName name;
};

} // namespace componentdatabase
