#pragma once

#include "Program/Session.h"
#include "Records/ISpecification.h"

#include <memory>
#include <string>
#include <vector>

namespace nuq {

using Specifications = std::vector<std::shared_ptr<tarnnuq::ISpecification>>;

/** The family types as a table, one line a parameter; a value that is not given is "-". */
std::string SpecificationTable(const Session& session, const Specifications& specifications);

} // namespace nuq
