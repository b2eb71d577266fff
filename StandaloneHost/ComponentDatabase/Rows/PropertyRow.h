#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"

#include <QtGlobal>

namespace componentdatabase {

/// A property as it is the same wherever a category has it.
struct PropertyRow
{
    qint64 id = 0;
    QString guid;
    QString code;
    BilingualName name;
    BilingualName group;
    bool isInstance = false;
    bool isEssential = false;
    qint16 storageType = 0; ///< The numbers of tarn::ITarnPropertyInfo::GetStorageType().
    qint16 displayType = 0; ///< The numbers of tarn::ITarnPropertyInfo::GetDisplayType().
    QString unit;
    QString unitCode;
};

} // namespace componentdatabase
