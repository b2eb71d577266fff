#pragma once

#include "Program/Session.h"
#include "Records/IProjectComponent.h"

#include <memory>
#include <vector>

namespace nuq {

/** An empty table for components. */
Table ComponentTable(const Session& session);

/** Adds components to such a table. */
void AddComponents(Table& table, const std::vector<std::shared_ptr<tarnnuq::IProjectComponent>>& components);

} // namespace nuq
