#pragma once

#include "ComponentDatabase/Sql/Connection.h"

#include <QStringList>
#include <vector>

namespace componentdatabase {

/// What leads from one version of the tables to the next.
struct SchemaStep
{
    QStringList statements;
    /// Fills what is new from what is there; may be null.
    void (*fill)(const Connection& connection) = nullptr;
};

/// The steps from an empty file on. A step that was ever released is never changed: a new one is added behind it.
const std::vector<SchemaStep>& SchemaSteps();

} // namespace componentdatabase
