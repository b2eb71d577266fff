#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"

namespace componentdatabase {

/// A value to choose from.
struct PropertyValueRow
{
    int id = 0;    ///< Unique within the property.
    QString value; ///< As it is stored in components.
    BilingualName text;
};

} // namespace componentdatabase
