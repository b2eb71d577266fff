#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"

namespace componentdatabase {

/// A component.
struct ComponentRow
{
    qint64 id = 0; ///< Its place in the catalogue's order.
    QString code;  ///< The component's id in the catalogue; unique.
    int version = 1;
    qint64 categoryId = 0;
    BilingualName name;
    QString status;
    QString thumbnail;  ///< Below the library's static folder.
    QString familyFile; ///< Below the library's static folder; empty when there is none.
};

} // namespace componentdatabase
