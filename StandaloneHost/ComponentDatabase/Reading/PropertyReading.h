#pragma once

#include "ComponentDatabase/Rows/CategoryPropertyRow.h"
#include "ComponentDatabase/Sql/Connection.h"

namespace componentdatabase {

/// The properties of a category by sort index, each with its values. Throws SqlFault.
std::vector<CategoryPropertyRow> ReadProperties(const Connection& connection, qint64 categoryId);

} // namespace componentdatabase
