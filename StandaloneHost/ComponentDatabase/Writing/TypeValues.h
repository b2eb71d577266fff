#pragma once

#include "ComponentDatabase/Rows/FamilyTypeRow.h"

#include <QVariant>
#include <vector>

namespace componentdatabase {

/// The values of one property in all family types of a component, as they are stored: most are the same in all types
/// and stand once.
struct TypeValues
{
    qint64 property = 0;
    QVariant common; ///< The text that all types have; null when they differ.
    QVariant each;   ///< JSON array of texts, null for a type without the value; null when all are the same.
};

/// The values of all types by property id.
std::vector<TypeValues> ValuesByProperty(const std::vector<FamilyTypeRow>& types);

} // namespace componentdatabase
