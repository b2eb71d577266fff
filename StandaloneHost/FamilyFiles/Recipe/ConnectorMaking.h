#pragma once

#include "FamilyFiles/Drawing/ConnectorMark.h"
#include "FamilyFiles/Formulas/Scope.h"
#include "FamilyFiles/Manifest/Connector.h"

namespace familyfiles {

/// The connector with its numbers worked out and checked. Throws RecipeFailure, its subject the connector.
ConnectorMark MakeConnector(const Connector& connector, const Scope& scope);

} // namespace familyfiles
