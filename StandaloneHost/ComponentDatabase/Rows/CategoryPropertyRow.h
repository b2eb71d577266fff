#pragma once

#include "ComponentDatabase/Rows/PropertyRow.h"
#include "ComponentDatabase/Rows/PropertyValueRow.h"

#include <vector>

namespace componentdatabase {

/// A property as one category has it.
struct CategoryPropertyRow
{
    PropertyRow property;
    int sortIndex = 0;
    bool isInput = true; ///< False when the value is computed.
    QString formula;
    std::vector<PropertyValueRow> values; ///< Those of the property's values that occur in the category.
};

} // namespace componentdatabase
